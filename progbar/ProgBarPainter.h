#pragma once

#include <cstdint>

#include "progbar/DrawingSurface.h"
#include "progbar/ProgBarState.h"

// How finely a display can grade: its bits per pixel over all planes, and the gradient bands worth painting.
struct GradientDepth {
    std::int32_t mColourDepth = 0;  // 0 until measured
    std::int16_t mGradientSteps = 0;

    friend bool operator==(const GradientDepth&, const GradientDepth&) = default;
};

// The depth and bands for a surface of `bitsPerPixel` in each of `planes`; unusual products count as depth 4.
[[nodiscard]] GradientDepth MeasureDepth(std::int32_t bitsPerPixel, std::int32_t planes) noexcept;

// Paints one bar, always whole and from its current state. Copes with any state a damaged store can leave.
// Each bar has its own painter, used with the same surface for life.
class ProgBarPainter {
public:
    // The bar, then the caption over it.
    void Paint(const ProgBarState& state, DrawingSurface& surface);

private:
    void DrawBar(const ProgBarState& state, DrawingSurface& surface);

    // Measured at the first paint and kept: a display that changes its depth later does not change the bands.
    GradientDepth depth_;
};
