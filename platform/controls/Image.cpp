#include "platform/controls/Image.h"

#include <QPainter>

#include "platform/pictures/DevicePixels.h"

void Image::Picture(const ::Picture& picture) {
    if (picture == picture_) return;
    picture_ = picture;
    update();
}

const ::Picture& Image::Shown() const {
    if (IsPressed() && !pressed_.IsEmpty()) return pressed_;
    return underMouse() && isEnabled() && !hover_.IsEmpty() ? hover_ : picture_;
}

void Image::paintEvent(QPaintEvent* /*event*/) {
    const ::Picture& shown = Shown();
    if (shown.IsEmpty()) return;
    QPainter painter(this);
    const qreal scale = UseDevicePixels(painter);
    const int sunk = IsPressed() && pressed_.IsEmpty() ? qRound(scale) : 0;
    DrawPixels(painter, {0, sunk}, shown.At(scale));
}

void Image::enterEvent(QEnterEvent* /*event*/) {
    if (!hover_.IsEmpty()) update();
}

void Image::leaveEvent(QEvent* /*event*/) {
    if (!hover_.IsEmpty()) update();
}
