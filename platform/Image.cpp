#include "platform/Image.h"

#include <QPainter>

#include "platform/DevicePixels.h"

void Image::Picture(const ::Picture& picture) {
    if (picture == picture_) return;
    picture_ = picture;
    update();
}

void Image::paintEvent(QPaintEvent* /*event*/) {
    const ::Picture& shown = underMouse() && !hover_.IsEmpty() ? hover_ : picture_;
    if (shown.IsEmpty()) return;
    QPainter painter(this);
    QImage image = shown.At(UseDevicePixels(painter));
    image.setDevicePixelRatio(1);
    painter.drawImage(0, 0, image);
}

void Image::enterEvent(QEnterEvent* /*event*/) {
    if (!hover_.IsEmpty()) update();
}

void Image::leaveEvent(QEvent* /*event*/) {
    if (!hover_.IsEmpty()) update();
}
