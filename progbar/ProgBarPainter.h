#pragma once

#include <cstdint>

#include "progbar/DrawingSurface.h"
#include "progbar/ProgBarState.h"

// A display's colour depth over all planes, and the number of gradient bands worth painting on it.
struct GradientDepth {
    std::int32_t mColourDepth = 0;  // 0 until measured
    std::int16_t mGradientSteps = 0;

    friend bool operator==(const GradientDepth&, const GradientDepth&) = default;
};

// The depth and bands for a surface of `bitsPerPixel` in each of `planes`; unknown depths count as 4.
[[nodiscard]] GradientDepth MeasureDepth(std::int32_t bitsPerPixel, std::int32_t planes) noexcept;

// Paints one bar, always whole and from its current state. Tolerates any state a damaged store can leave.
// Each bar has its own painter, always used with the same surface.
class ProgBarPainter {
public:
    // The bar, then the caption over it.
    void Paint(const ProgBarState& state, DrawingSurface& surface);

private:
    void DrawBar(const ProgBarState& state, DrawingSurface& surface);

    // Measured at the first paint only, so a later change of the display's depth does not change the bands.
    GradientDepth depth_;
};
