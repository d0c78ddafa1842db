#include "screen/TimeBar.h"

#include <QPainter>
#include <cstring>
#include <utility>

#include "platform/pictures/DevicePixels.h"

TimeBar::TimeBar(QWidget* parent, const Placement& placement, const PropertyBag& stored)
    : Control<QWidget>(parent, placement), bar_(surface_, *this) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    bar_.UserControl_ReadProperties(stored);
    FitSurface((QSizeF(this->size()) * devicePixelRatioF()).toSize());
}

// Updates only the rows in which the bar differs from what is on screen.
void TimeBar::PropertyChanged(std::string_view /*key*/) {
    const QImage& now = surface_.Pixels();
    if (shown_.size() != now.size()) return update();
    const auto same = [is = now.constBits(), was = shown_.constBits(), bytes = now.bytesPerLine()](int row) {
        return std::memcmp(is + row * bytes, was + row * bytes, std::size_t(bytes)) == 0;
    };
    int first = 0, last = now.height() - 1;
    while (first <= last && same(first)) ++first;
    while (last >= first && same(last)) --last;
    if (first > last) return;
    const qreal scale = devicePixelRatioF();
    update(QRectF(0, first / scale, width(), (last - first + 1) / scale).toAlignedRect());
}

void TimeBar::FitSurface(QSize pixels) {
    surface_.Resize(pixels, devicePixelRatioF());
    bar_.UserControl_Resize();
}

void TimeBar::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const QRect whole = DevicePixelsOf(painter, size());
    UseDevicePixels(painter);
    if (surface_.Pixels().size() != whole.size()) FitSurface(whole.size());
    shown_ = surface_.Pixels().copy();
    painter.drawImage(0, 0, shown_);
}

PropertyValue TimeBarDesign::ReadProperty(std::string_view key, const PropertyValue& byDefault) const {
    static const std::pair<std::string_view, PropertyValue> kStored[] = {
        {"BackColour", std::int32_t{0x404040}},   {"BarStartColour", std::int32_t{0xE0E0E0}},
        {"BarEndColour", std::int32_t{0xE0E0E0}}, {"BorderStyle", std::int16_t{0}},
        {"FillDirection", std::int32_t{1}},       {"BarStyle", std::int32_t{0}},
    };
    for (const auto& [stored, value] : kStored)
        if (stored == key) return value;
    return byDefault;
}
