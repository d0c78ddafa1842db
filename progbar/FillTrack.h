#pragma once

#include "progbar/DrawingSurface.h"
#include "progbar/ProgBarState.h"

// The geometry of a bar that fills from one side of its surface towards the opposite one, up to the fill line
// at Percent. Every rectangle spans the full breadth; if FillDirection is out of range, each is the whole
// surface.
class FillTrack {
public:
    // width, height: of the surface, in whole pixels.
    FillTrack(const ProgBarState& state, std::int32_t width, std::int32_t height);

    [[nodiscard]] bool HasDirection() const { return hasDirection_; }

    // The parts on either side of the fill line.
    [[nodiscard]] Rect Filled() const;
    [[nodiscard]] Rect Unfilled() const;

    // Band `i` of `bands` equal ones, band 0 at the start.
    [[nodiscard]] Rect Band(int i, int bands) const;
    // Whether the rounded far edge of `band` reaches the fill line; such a band is not painted.
    [[nodiscard]] bool ReachesFillLine(const Rect& band) const;

private:
    // The rectangle between two positions measured from the left or the top, rounded to pixels.
    [[nodiscard]] Rect Between(double from, double to) const;

    Rect whole_;
    bool hasDirection_;
    bool vertical_ = false;
    bool backward_ = false;  // fills towards the left or the top
    double length_ = 0;      // from the start to the end
    double fillLine_ = 0;    // measured from the left or the top
};
