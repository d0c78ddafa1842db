#include "platform/controls/Shape.h"

#include <QPainter>

#include "platform/pictures/DevicePixels.h"

Shape::Shape(QWidget* parent, const Placement& placement) : Control<QWidget>(parent, placement) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void Shape::Look(const QColor& outline, const QColor& inside, int radius) {
    outline_ = outline;
    inside_ = inside;
    radius_ = radius;
    update();
}

void Shape::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const QSizeF size = QRectF(rect()).size();
    const qreal scale = UseDevicePixels(painter);
    const qreal line = outline_.isValid() ? qMax(1.0, qreal(qFloor(scale))) : 0;
    painter.setRenderHint(QPainter::Antialiasing, radius_ > 0);
    painter.setPen(line > 0 ? QPen(outline_, line, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin) : Qt::NoPen);
    painter.setBrush(inside_.isValid() ? QBrush(inside_) : Qt::NoBrush);
    const QRectF area(
        QPointF(line / 2, line / 2),
        QSizeF(qFloor(size.width() * scale), qFloor(size.height() * scale)) - QSizeF(line, line));
    painter.drawRoundedRect(area, radius_ * scale, radius_ * scale);
}
