#pragma once

#include <cstdint>

// 0x00BBGGRR: red in the low byte. The high byte of a stored colour may hold anything and is never painted.
using Colour = std::int32_t;

// The part of `colour` that is painted: its three low bytes.
[[nodiscard]] constexpr Colour BrushColour(Colour colour) noexcept {
    return colour & 0xFFFFFF;
}
