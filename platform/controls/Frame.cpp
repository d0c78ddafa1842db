#include "platform/controls/Frame.h"

#include <QPaintEvent>
#include <QPainter>

#include "platform/pictures/DevicePixels.h"

void Frame::BackColor(Colour colour) {
    colour_ = ToQColor(colour);
    update();
}

void Frame::Background(const ::Picture& picture) {
    background_ = picture;
    update();
}

void Frame::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.fillRect(event->rect(), colour_);
    if (background_.IsEmpty()) return;
    const qreal scale = UseDevicePixels(painter);
    DrawPixels(painter, {0, 0}, background_.At(scale));
}
