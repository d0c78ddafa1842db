#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>

// value + change, held at the end of T's range instead of leaving it. T: an integer of at most 32 bits;
// change: anything that fits in 32 bits. For the counts and points that a long game could drive out of range.
template <typename T>
[[nodiscard]] constexpr T SaturatedSum(T value, std::int64_t change) noexcept {
    static_assert(sizeof(T) <= sizeof(std::int32_t));
    return static_cast<T>(std::clamp<std::int64_t>(value + change, std::numeric_limits<T>::min(),
                                                   std::numeric_limits<T>::max()));
}
