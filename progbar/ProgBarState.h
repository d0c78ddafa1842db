#pragma once

#include <cstdint>
#include <string>

#include "progbar/Colour.h"

// The values BarStyle can be set to; a loaded one may be anything, and all but kSolidBar paint bands.
inline constexpr std::int32_t kGradientBands = 0;
inline constexpr std::int32_t kSolidBar = 1;

// The values FillDirection can be set to; a loaded one may be anything.
inline constexpr std::int32_t kBottomToTop = 0;
inline constexpr std::int32_t kTopToBottom = 1;
inline constexpr std::int32_t kRightToLeft = 2;
inline constexpr std::int32_t kLeftToRight = 3;

// The properties that a bar stores itself and paints from, with the defaults of a new bar.
// Property writes keep Min < Max, Percent <= 100 and BarStyle and FillDirection in range, but loaded values
// are not validated, so code that reads a state must tolerate any value.
struct ProgBarState {
    std::uint8_t Percent = 0;  // filled share, 0..100
    std::int32_t Min = 0;
    std::int32_t Max = 100;
    std::int32_t Value = 0;
    bool ShowPercent = false;  // never on together with ShowValue
    std::string Message{};     // UTF-8
    bool ShowMessage = false;
    Colour BarStartColour = 0x0000FF;  // of the whole bar if solid
    Colour BarEndColour = 0x000000;
    bool ShowValue = false;
    std::int32_t FillDirection = kLeftToRight;
    Colour BackColour = 0xFFFFFF;
    bool VerticalText = false;  // stacks the caption's characters
    std::int32_t BarStyle = kSolidBar;
    bool WaitForSound = false;  // stored for the container
};
