#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>

// value + change, clamped to the range of T, which a long game could otherwise leave. T: an integer of at
// most 32 bits; change: anything that fits in 32 bits.
template <typename T>
[[nodiscard]] constexpr T SaturatedSum(T value, std::int64_t change) noexcept {
    static_assert(sizeof(T) <= sizeof(std::int32_t));
    return static_cast<T>(std::clamp<std::int64_t>(value + change, std::numeric_limits<T>::min(),
                                                   std::numeric_limits<T>::max()));
}
