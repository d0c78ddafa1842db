#include "screen/BarSurface.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>

#include "platform/Colour.h"

namespace {

QString Text(std::string_view text) {
    return QString::fromUtf8(text.data(), qsizetype(text.size()));
}

}  // namespace

void BarSurface::Resize(QSize size, qreal scale) {
    pixels_ = QImage(size, QImage::Format_RGB32);
    pixels_.fill(Qt::black);
    font_ = QFont(QStringLiteral("Arial"));
    font_.setPixelSize(qMax(1, qRound(11 * scale)));  // 8.25 points
}

// A bar is a few hundred of these: filled without a painter, which would cost more than the pixels.
void BarSurface::FillRect(const Rect& area, Colour colour) {
    const QRect asked(QPoint(area.left, area.top), QPoint(area.right - 1, area.bottom - 1));
    const QRect inside(QPoint(0, 0), pixels_.size() - 2 * QSize(Border(), Border()));
    const QRect filled = inside.isEmpty() ? QRect() : (asked & inside).translated(Border(), Border());
    if (filled.isEmpty()) return;
    const QRgb pixel = ToQColor(BrushColour(colour)).rgb();
    auto* row =
        reinterpret_cast<QRgb*>(pixels_.bits()) + qsizetype{filled.top()} * pixels_.width() + filled.left();
    for (int rows = filled.height(); rows > 0; --rows, row += pixels_.width())
        std::fill_n(row, filled.width(), pixel);
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
    painter.setPen(ToQColor(BrushColour(foreColour_)));
    const double baseline = y * unitY_ + QFontMetricsF(font_).ascent();
    painter.drawText(QPointF(x * unitX_ + Border(), baseline + Border()), Text(text));
}
