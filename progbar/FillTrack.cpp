#include "progbar/FillTrack.h"

#include <array>

#include "progbar/Rounding.h"

namespace {

struct Way {
    bool vertical;
    bool backward;
};

// By FillDirection.
constexpr std::array<Way, 4> kWays{{{true, true}, {true, false}, {false, true}, {false, false}}};

}  // namespace

// The order of operations matters. Length * Percent / 100 looks equivalent, but rounds differently and would
// move the fill line to another pixel or band for some lengths.
FillTrack::FillTrack(const ProgBarState& state, std::int32_t width, std::int32_t height)
    : whole_{0, 0, width, height},
      hasDirection_{state.FillDirection >= kBottomToTop && state.FillDirection <= kLeftToRight} {
    if (!hasDirection_) return;
    const Way& way = kWays[static_cast<std::size_t>(state.FillDirection)];
    vertical_ = way.vertical;
    backward_ = way.backward;
    length_ = vertical_ ? height : width;
    const double filled = length_ / 100 * state.Percent;
    fillLine_ = backward_ ? length_ - filled : filled;
}

Rect FillTrack::Filled() const {
    return backward_ ? Between(fillLine_, length_) : Between(0, fillLine_);
}

Rect FillTrack::Unfilled() const {
    return backward_ ? Between(0, fillLine_) : Between(fillLine_, length_);
}

Rect FillTrack::Band(int i, int bands) const {
    const double from = length_ * i / bands;
    const double to = length_ * (i + 1) / bands;
    return backward_ ? Between(length_ - to, length_ - from) : Between(from, to);
}

bool FillTrack::ReachesFillLine(const Rect& band) const {
    if (backward_) return (vertical_ ? band.top : band.left) <= fillLine_;
    return (vertical_ ? band.bottom : band.right) >= fillLine_;
}

Rect FillTrack::Between(double from, double to) const {
    Rect part = whole_;
    if (!hasDirection_) return part;
    (vertical_ ? part.top : part.left) = Round(from);
    (vertical_ ? part.bottom : part.right) = Round(to);
    return part;
}
