#pragma once

#include <QRect>
#include <QString>

// Design positions are twips, 15 to a logical pixel.
using Twips = int;
inline constexpr Twips kTwipsPerPixel = 15;

// The nearest whole pixel; halves go away from zero.
constexpr int ToPixels(Twips twips) {
    const int half = twips < 0 ? -kTwipsPerPixel / 2 : kTwipsPerPixel / 2;
    return (twips + half) / kTwipsPerPixel;
}

// Where a control stands inside its parent.
struct TwipsRect {
    Twips left = 0, top = 0, width = 0, height = 0;

    [[nodiscard]] QRect InPixels() const {
        return {ToPixels(left), ToPixels(top), ToPixels(width), ToPixels(height)};
    }
};

// A control as it was designed: its name, with the index for a member of a control array, where it stands and
// the text it starts with.
struct Placement {
    QString name;
    TwipsRect place;
    QString caption;
};
