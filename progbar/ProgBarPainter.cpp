#include "progbar/ProgBarPainter.h"

#include <algorithm>
#include <array>

#include "progbar/FillTrack.h"
#include "progbar/ProgBarCaption.h"
#include "progbar/Rounding.h"

namespace {

constexpr std::array<GradientDepth, 6> kDepths{{{4, 64}, {8, 64}, {15, 32}, {16, 256}, {24, 256}, {32, 256}}};

// A colour on its way through the gradient, or the way of one band.
struct Channels {
    float red;
    float green;
    float blue;
};

Channels Split(Colour colour) {
    const auto channel = [colour](int shift) { return static_cast<float>((colour >> shift) & 0xFF); };
    return {channel(0), channel(8), channel(16)};
}

Colour Join(const Channels& channels) {
    return Floor(channels.red) + 256 * Floor(channels.green) + 65536 * Floor(channels.blue);
}

Channels PerBand(const Channels& from, const Channels& to, std::int16_t bands) {
    return {(to.red - from.red) / bands, (to.green - from.green) / bands, (to.blue - from.blue) / bands};
}

Channels Sum(const Channels& a, const Channels& b) {
    return {a.red + b.red, a.green + b.green, a.blue + b.blue};
}

// Paints the bands short of the fill line. Returns the band it stopped at, `bands` when all were painted.
// The advance is summed up band by band, not multiplied: its rounding decides on which pixel an edge falls.
int DrawBands(const ProgBarState& state, const FillTrack& track, std::int16_t bands,
              DrawingSurface& surface) {
    const double extent = track.Length() / bands;
    Channels colour = Split(state.BarStartColour);
    const Channels step = PerBand(colour, Split(state.BarEndColour), bands);
    double advance = 0;
    for (int i = 0; i < bands; ++i) {
        const Rect band = track.Band(advance, extent);
        if (track.ReachesFillLine(band)) return i;
        surface.FillRect(band, Join(colour));
        advance += extent;
        colour = Sum(colour, step);
    }
    return bands;
}

// The end band closes a full gradient with the exact end colour, which the bands only come near. Without a
// direction no band has a place, and the end band alone is the bar.
void DrawGradient(const ProgBarState& state, const FillTrack& track, std::int16_t bands,
                  DrawingSurface& surface) {
    if (track.HasDirection() && DrawBands(state, track, bands, surface) < bands - 1) return;
    surface.FillRect(track.EndBand(track.Length() / bands), BrushColour(state.BarEndColour));
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
