#include "progbar/ProgBarPainter.h"

#include <algorithm>
#include <array>

#include "progbar/FillTrack.h"
#include "progbar/ProgBarCaption.h"
#include "progbar/Rounding.h"

namespace {

constexpr std::array<GradientDepth, 6> kDepths{{{4, 64}, {8, 64}, {15, 32}, {16, 256}, {24, 256}, {32, 256}}};

// The colour of band `i` of `bands`: channels are interpolated separately, rounding down.
Colour BandColour(Colour from, Colour to, int i, int bands) {
    Colour mixed = 0;
    for (const int shift : {0, 8, 16}) {
        const int start = (from >> shift) & 0xFF;
        const int end = (to >> shift) & 0xFF;
        mixed |= (start * (bands - i) + end * i) / bands << shift;
    }
    return mixed;
}

// Paints the bands before the fill line. Returns the index it stopped at, `bands` if it painted all.
int DrawBands(const ProgBarState& state, const FillTrack& track, int bands, DrawingSurface& surface) {
    for (int i = 0; i < bands; ++i) {
        const Rect band = track.Band(i, bands);
        if (track.ReachesFillLine(band)) return i;
        surface.FillRect(band, BandColour(state.BarStartColour, state.BarEndColour, i, bands));
    }
    return bands;
}

// The last band ends a full gradient with the exact end colour, which the others only approximate. Without a
// direction, the last band alone is the bar.
void DrawGradient(const ProgBarState& state, const FillTrack& track, int bands, DrawingSurface& surface) {
    if (track.HasDirection() && DrawBands(state, track, bands, surface) < bands - 1) return;
    surface.FillRect(track.Band(bands - 1, bands), BrushColour(state.BarEndColour));
}

}  // namespace

GradientDepth MeasureDepth(std::int32_t bitsPerPixel, std::int32_t planes) noexcept {
    const std::int64_t depth = std::int64_t{bitsPerPixel} * planes;
    const auto known = std::ranges::find(kDepths, depth, &GradientDepth::mColourDepth);
    return known != kDepths.end() ? *known : kDepths.front();
}

void ProgBarPainter::Paint(const ProgBarState& state, DrawingSurface& surface) {
    DrawBar(state, surface);
    DrawCaption(state, surface);
}

void ProgBarPainter::DrawBar(const ProgBarState& state, DrawingSurface& surface) {
    if (depth_.mColourDepth == 0) depth_ = MeasureDepth(surface.BitsPerPixel(), surface.Planes());
    const FillTrack track(state, Round(surface.Width()), Round(surface.Height()));
    if (state.BarStyle == kSolidBar) {
        surface.FillRect(track.Filled(), BrushColour(state.BarStartColour));
    } else {
        DrawGradient(state, track, depth_.mGradientSteps, surface);
    }
    if (state.Percent < 100) surface.FillRect(track.Unfilled(), BrushColour(state.BackColour));
}
