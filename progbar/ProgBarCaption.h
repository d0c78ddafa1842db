#pragma once

#include <string>

#include "progbar/DrawingSurface.h"
#include "progbar/ProgBarState.h"

// The text over the bar: the message, the percentage or "value/maximum", or the message with one of the two
// after a blank. Empty when nothing is to be shown. The percentage wins when a store switched both on.
[[nodiscard]] std::string CaptionText(const ProgBarState& state);

// Prints the caption in the middle of the surface; touches nothing, not even the scale, when all captions are
// switched off. Leaves the surface's scale in pixels.
void DrawCaption(const ProgBarState& state, DrawingSurface& surface);
