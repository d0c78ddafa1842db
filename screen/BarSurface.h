#pragma once

#include <QFont>
#include <QImage>

#include "progbar/DrawingSurface.h"

// The image a time bar paints on, in device pixels, so that the bar is sharp at every scale.
class BarSurface final : public DrawingSurface {
public:
    // Starts over with an empty image of `size` device pixels, `scale` of them per logical pixel.
    void Resize(QSize size, qreal scale);
    [[nodiscard]] const QImage& Pixels() const { return pixels_; }

    [[nodiscard]] Colour ForeColour() const override { return foreColour_; }
    void ForeColour(Colour colour) override { foreColour_ = colour; }
    [[nodiscard]] std::int16_t BorderStyle() const override { return borderStyle_; }
    void BorderStyle(std::int16_t style) override { borderStyle_ = style; }
    [[nodiscard]] double Width() const override { return pixels_.width() - 2 * Border(); }
    [[nodiscard]] double Height() const override { return pixels_.height() - 2 * Border(); }
    [[nodiscard]] std::int32_t BitsPerPixel() const override { return 32; }
    [[nodiscard]] std::int32_t Planes() const override { return 1; }
    void FillRect(const Rect& area, Colour colour) override;
    void UserScale(double width, double height) override;
    void PixelScale() override { unitX_ = unitY_ = 1; }
    [[nodiscard]] double TextWidth(std::string_view text) const override;
    [[nodiscard]] double TextHeight(std::string_view text) const override;
    void Print(double x, double y, std::string_view text) override;

private:
    [[nodiscard]] int Border() const { return borderStyle_ == 1 ? 1 : 0; }

    QImage pixels_;
    QFont font_;
    Colour foreColour_ = 0;
    std::int16_t borderStyle_ = 0;
    double unitX_ = 1, unitY_ = 1;  // pixels per unit of the current scale
};
