#include "screen/BarSurface.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>

namespace {

QString Text(std::string_view text) {
    return QString::fromUtf8(text.data(), qsizetype(text.size()));
}

// The high byte of a stored colour may hold anything.
QRgb Pixel(Colour colour) {
    return qRgb(colour & 0xFF, colour >> 8 & 0xFF, colour >> 16 & 0xFF);
}

}  // namespace

void BarSurface::Resize(QSize size, qreal scale) {
    pixels_ = QImage(size, QImage::Format_RGB32);
    pixels_.fill(Qt::black);
    font_ = QFont(QStringLiteral("Arial"));
    font_.setPixelSize(qMax(1, qRound(11 * scale)));  // 8.25 points
}

// A bar takes hundreds of these, so fill directly: a QPainter would cost more than the pixels.
void BarSurface::FillRect(const Rect& area, Colour colour) {
    const int left = std::max(area.left, 0), right = std::min(area.right, pixels_.width() - 2 * Border());
    const int top = std::max(area.top, 0), bottom = std::min(area.bottom, pixels_.height() - 2 * Border());
    if (left >= right || top >= bottom) return;
    const QRgb pixel = Pixel(colour);
    auto* row = reinterpret_cast<QRgb*>(pixels_.scanLine(top + Border())) + left + Border();
    for (int rows = bottom - top; rows > 0; --rows, row += pixels_.width())
        std::fill_n(row, right - left, pixel);
}

void BarSurface::UserScale(double width, double height) {
    unitX_ = Width() / width;
    unitY_ = Height() / height;
}

double BarSurface::TextWidth(std::string_view text) const {
    return unitX_ > 0 ? QFontMetricsF(font_).horizontalAdvance(Text(text)) / unitX_ : 0;
}

double BarSurface::TextHeight(std::string_view /*text*/) const {
    return unitY_ > 0 ? QFontMetricsF(font_).height() / unitY_ : 0;
}

void BarSurface::Print(double x, double y, std::string_view text) {
    QPainter painter(&pixels_);
    painter.setFont(font_);
    painter.setPen(QColor(Pixel(foreColour_)));
    const double baseline = y * unitY_ + QFontMetricsF(font_).ascent();
    painter.drawText(QPointF(x * unitX_ + Border(), baseline + Border()), Text(text));
}
