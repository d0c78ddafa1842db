#pragma once

#include <QRect>
#include <QString>

// Design positions are twips, 15 to a logical pixel.
using Twips = int;
inline constexpr Twips kTwipsPerPixel = 15;

// Rounds to the nearest pixel, halves away from zero.
constexpr int ToPixels(Twips twips) {
    const int half = twips < 0 ? -kTwipsPerPixel / 2 : kTwipsPerPixel / 2;
    return (twips + half) / kTwipsPerPixel;
}

// A control's geometry within its parent.
struct TwipsRect {
    Twips left = 0, top = 0, width = 0, height = 0;

    [[nodiscard]] QRect InPixels() const {
        return {ToPixels(left), ToPixels(top), ToPixels(width), ToPixels(height)};
    }
};

// A control's design: its name, with the index in a control array, its geometry and its initial text.
struct Placement {
    QString name;
    TwipsRect place;
    QString caption;
};
