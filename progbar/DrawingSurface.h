#pragma once

#include <cstdint>
#include <string_view>

#include "progbar/Colour.h"

// Pixels; right and bottom are exclusive, so equal edges enclose nothing.
struct Rect {
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t right = 0;
    std::int32_t bottom = 0;

    friend bool operator==(const Rect&, const Rect&) = default;
};

// The surface a bar is painted on, which also stores two of its properties. Pixels persist between paints: a
// bar does not clear the surface first and leaves some pixels untouched. Only painting calls the drawing
// operations; they must not trigger another paint.
class DrawingSurface {
public:
    virtual ~DrawingSurface() = default;

    // The text colour.
    [[nodiscard]] virtual Colour ForeColour() const = 0;
    virtual void ForeColour(Colour colour) = 0;

    // 0 no border, 1 a fixed line one pixel wide. A loaded value may be anything.
    [[nodiscard]] virtual std::int16_t BorderStyle() const = 0;
    virtual void BorderStyle(std::int16_t style) = 0;

    // The size inside the border, in pixels at any scale; the painter rounds fractions.
    [[nodiscard]] virtual double Width() const = 0;
    [[nodiscard]] virtual double Height() const = 0;

    // The two factors of the colour depth.
    [[nodiscard]] virtual std::int32_t BitsPerPixel() const = 0;
    [[nodiscard]] virtual std::int32_t Planes() const = 0;

    // Fills the part of `area` on the surface, always in pixels. `area` may be empty or extend beyond it.
    virtual void FillRect(const Rect& area, Colour colour) = 0;

    // Makes text use units of which `width` x `height` cover the surface.
    virtual void UserScale(double width, double height) = 0;
    // Restores pixels, the scale between paints.
    virtual void PixelScale() = 0;

    // The extent of `text` (UTF-8) in the surface's font, in units of the current scale.
    [[nodiscard]] virtual double TextWidth(std::string_view text) const = 0;
    [[nodiscard]] virtual double TextHeight(std::string_view text) const = 0;
    // Prints `text` with its top left corner at (x, y), in units of the current scale.
    virtual void Print(double x, double y, std::string_view text) = 0;
};
