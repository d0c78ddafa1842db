#pragma once

#include "progbar/DrawingSurface.h"
#include "progbar/ProgBarState.h"

// The way a bar fills its surface: from one side to the opposite one, up to the fill line at Percent. Gives
// the rectangles along it, each from side to side across it.
// A FillDirection outside its range has no way: every rectangle is then the whole surface.
class FillTrack {
public:
    // width, height: of the surface, in whole pixels.
    FillTrack(const ProgBarState& state, std::int32_t width, std::int32_t height);

    [[nodiscard]] bool HasDirection() const { return hasDirection_; }

    // The parts on the two sides of the fill line.
    [[nodiscard]] Rect Filled() const;
    [[nodiscard]] Rect Unfilled() const;

    // Band `i` of `bands` equally long ones, band 0 at the start.
    [[nodiscard]] Rect Band(int i, int bands) const;
    // Whether the far edge of `band`, as rounded, is at the fill line or beyond it: it is not shown then.
    [[nodiscard]] bool ReachesFillLine(const Rect& band) const;

private:
    // The rectangle between two positions counted from the left or the top, rounded to pixels.
    [[nodiscard]] Rect Between(double from, double to) const;

    Rect whole_;
    bool hasDirection_;
    bool vertical_ = false;
    bool backward_ = false;  // fills towards the left or the top
    double length_ = 0;      // from the start to the end
    double fillLine_ = 0;    // counted from the left or the top
};
