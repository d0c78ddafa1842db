#pragma once

#include <cstdint>
#include <optional>

namespace mdlFontSize {

// The tallest system font of a display with small fonts, in pixels.
inline constexpr std::int16_t kSmallFontHeight = 16;

// The height of the display's system font in pixels, 16 at 96 dots per inch after the desktop's own scaling;
// nothing without a display.
[[nodiscard]] std::optional<std::int16_t> SystemFontHeight();

// Whether the display uses small fonts; true if unknown. Called once, by Main.
[[nodiscard]] bool CheckSmallFonts(std::optional<std::int16_t> height = SystemFontHeight());

}  // namespace mdlFontSize
