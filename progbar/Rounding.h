#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

// Whole 32-bit numbers from double-precision ones. What lies beyond 32 bits becomes the nearest end of their
// range and what is not a number becomes 0: a damaged store can lead there, and a plain cast is undefined.

[[nodiscard]] inline std::int32_t Saturated(double value) noexcept {
    using Limits = std::numeric_limits<std::int32_t>;
    if (std::isnan(value)) return 0;
    return static_cast<std::int32_t>(std::clamp<double>(value, Limits::min(), Limits::max()));
}

// The greatest whole number not above `value`.
[[nodiscard]] inline std::int32_t Floor(double value) noexcept {
    return Saturated(std::floor(value));
}

// The nearest whole number, ties to the even one: the rounding mode every thread starts in.
[[nodiscard]] inline std::int32_t Round(double value) noexcept {
    return Saturated(std::nearbyint(value));
}
