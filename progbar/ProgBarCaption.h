#pragma once

#include <string>

#include "progbar/DrawingSurface.h"
#include "progbar/ProgBarState.h"

// The text over the bar: the message, the percentage or "value/maximum", or the message with one of the two
// after a space. Empty if nothing is shown. The percentage wins if a loaded bar shows both.
[[nodiscard]] std::string CaptionText(const ProgBarState& state);

// Prints the caption centred on the surface and leaves its scale in pixels. If all captions are off, touches
// nothing, not even the scale.
void DrawCaption(const ProgBarState& state, DrawingSurface& surface);
