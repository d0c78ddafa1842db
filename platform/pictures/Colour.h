#pragma once

#include <QColor>
#include <cstdint>

// A colour laid out 0x00BBGGRR, red in the low byte; with the top bit set it names a colour of the system.
using Colour = std::int32_t;

inline constexpr Colour kBlack = 0x000000;
inline constexpr Colour kWhite = 0xFFFFFF;
inline constexpr Colour kRed = 0x0000FF;
// The colour of the application's buttons, 0x8000000F.
inline constexpr Colour kButtonFace = static_cast<Colour>(0x8000000FU);

// The colour to draw with. A system colour other than the button face counts as black.
[[nodiscard]] QColor ToQColor(Colour colour);
