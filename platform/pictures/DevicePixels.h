#pragma once

#include <QPainter>

// Makes the painter of a control work in device pixels, the control's corner on a whole one: at fractional
// scales a control may start between two device pixels, and everything drawn there would blur.
// Returns the scale: device pixels to a logical one.
inline qreal UseDevicePixels(QPainter& painter) {
    const QTransform toDevice = painter.deviceTransform();
    const QPointF corner = toDevice.map(QPointF(0, 0));
    const qreal scale = toDevice.m11();
    painter.translate((corner.toPoint() - corner) / scale);
    painter.scale(1 / scale, 1 / scale);
    return scale;
}

// The device pixels of a control of that size, from its corner on. Call before UseDevicePixels. At fractional
// scales they may be one more or less than the size times the scale, as the control begins and ends on whole
// pixels.
inline QRect DevicePixelsOf(const QPainter& painter, const QSize& size) {
    const QTransform toDevice = painter.deviceTransform();
    const QPoint from = toDevice.map(QPointF(0, 0)).toPoint();
    const QPoint to = toDevice.map(QPointF(size.width(), size.height())).toPoint();
    return {QPoint(0, 0), QSize(to.x() - from.x(), to.y() - from.y())};
}

// Draws `image` pixel by pixel with its corner at `at`, whatever scale it is meant for. Nothing is copied for
// it, as it would be by changing that scale in the image.
inline void DrawPixels(QPainter& painter, QPoint at, const QImage& image) {
    painter.drawImage(QRect(at, image.size()), image);
}
