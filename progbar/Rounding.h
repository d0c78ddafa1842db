#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

// Conversions from double to 32-bit integer. Values out of range saturate and NaN becomes 0: a damaged store
// can lead there, and a plain cast is undefined.

[[nodiscard]] inline std::int32_t Saturated(double value) noexcept {
    using Limits = std::numeric_limits<std::int32_t>;
    if (std::isnan(value)) return 0;
    return static_cast<std::int32_t>(std::clamp<double>(value, Limits::min(), Limits::max()));
}

// Rounds down.
[[nodiscard]] inline std::int32_t Floor(double value) noexcept {
    return Saturated(std::floor(value));
}

// Rounds half to even: the rounding mode every thread starts in.
[[nodiscard]] inline std::int32_t Round(double value) noexcept {
    return Saturated(std::nearbyint(value));
}
