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

// What a bar is painted on, and the home of the two properties that belong to it. It keeps its pixels from
// paint to paint: a bar clears nothing first, and leaves some pixels as they were. Only painting a bar calls
// the drawing operations; they must not ask for another paint in turn.
class DrawingSurface {
public:
    virtual ~DrawingSurface() = default;

    // The colour text is printed in.
    [[nodiscard]] virtual Colour ForeColour() const = 0;
    virtual void ForeColour(Colour colour) = 0;

    // 0 no border, 1 a fixed line one pixel wide. A loaded store may set anything.
    [[nodiscard]] virtual std::int16_t BorderStyle() const = 0;
    virtual void BorderStyle(std::int16_t style) = 0;

    // The size inside the border, in pixels whatever the scale is; a fraction is rounded by the painter.
    [[nodiscard]] virtual double Width() const = 0;
    [[nodiscard]] virtual double Height() const = 0;

    // The two factors of the colour depth.
    [[nodiscard]] virtual std::int32_t BitsPerPixel() const = 0;
    [[nodiscard]] virtual std::int32_t Planes() const = 0;

    // Fills what of `area` lies on the surface, always in pixels. `area` may be empty or reach outside.
    virtual void FillRect(const Rect& area, Colour colour) = 0;

    // From here on text is measured and placed in units of which `width` x `height` cover the surface.
    virtual void UserScale(double width, double height) = 0;
    // Back to pixels, the scale between paints.
    virtual void PixelScale() = 0;

    // The extent of `text` (UTF-8) in the surface's font, in units of the scale in force.
    [[nodiscard]] virtual double TextWidth(std::string_view text) const = 0;
    [[nodiscard]] virtual double TextHeight(std::string_view text) const = 0;
    // Prints `text` with its left top corner at (x, y), in units of the scale in force.
    virtual void Print(double x, double y, std::string_view text) = 0;
};
