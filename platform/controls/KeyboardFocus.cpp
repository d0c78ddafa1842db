#include "platform/controls/KeyboardFocus.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <limits>

#include "platform/pictures/DevicePixels.h"

namespace {

constexpr int kRingWidth = 3;

void Press(QWidget& control) {
    if (auto* button = qobject_cast<QAbstractButton*>(&control))
        button->click();
    else if (const Access* access = AccessOf(&control); access && access->press)
        access->press();
}

QPoint Direction(int key) {
    switch (key) {
        case Qt::Key_Left:
            return {-1, 0};
        case Qt::Key_Right:
            return {1, 0};
        case Qt::Key_Up:
            return {0, -1};
        case Qt::Key_Down:
            return {0, 1};
        default:
            return {};
    }
}

QPoint Centre(const QWidget& window, const QWidget& control) {
    return control.mapTo(&window, control.rect().center());
}

bool TakesKeyboard(const QWidget& control) {
    return control.isVisible() && control.isEnabled() && control.focusPolicy() != Qt::NoFocus &&
           IsPressable(control);
}

// The nearest control in `direction`, within about 34 degrees of it; sideways distance counts fourfold. Null
// if there is none.
QWidget* Nearest(const QWidget& window, QPoint from, QPoint direction) {
    QWidget* nearest = nullptr;
    int least = std::numeric_limits<int>::max();
    for (QWidget* control : window.findChildren<QWidget*>()) {
        if (!TakesKeyboard(*control)) continue;
        const QPoint way = Centre(window, *control) - from;
        const int ahead = QPoint::dotProduct(way, direction);
        const int aside = qAbs(QPoint::dotProduct(way, direction.transposed()));
        const int cost = ahead + 4 * aside;
        if (2 * ahead <= 3 * aside || cost >= least) continue;
        nearest = control;
        least = cost;
    }
    return nearest;
}

}  // namespace

bool AnswerKey(QWidget& window, const QKeyEvent& event) {
    QWidget* focused = window.focusWidget();
    const int key = event.key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space) {
        if (!focused || !TakesKeyboard(*focused)) return false;
        if (!event.isAutoRepeat()) Press(*focused);
        return true;
    }
    const QPoint direction = Direction(key);
    if (direction.isNull()) return false;
    QWidget* next = Nearest(window, Centre(window, focused ? *focused : window), direction);
    if (next) next->setFocus(Qt::TabFocusReason);
    return true;
}

FocusRing::FocusRing(QWidget* window) : QWidget(window) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { Follow(now); });
}

void FocusRing::Follow(const QWidget* focused) {
    const QWidget& window = *parentWidget();
    const bool here = focused && focused->window() == &window && focused != &window && IsPressable(*focused);
    setVisible(here && window.testAttribute(Qt::WA_KeyboardFocusChange));
    if (isHidden()) return;
    const QRect place(focused->mapTo(&window, QPoint(0, 0)), focused->size());
    setGeometry(place.adjusted(-kRingWidth, -kRingWidth, kRingWidth, kRingWidth));
    raise();
}

void FocusRing::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const QSizeF size = QRectF(rect()).size();
    const qreal scale = UseDevicePixels(painter);
    painter.setRenderHint(QPainter::Antialiasing);
    const qreal unit = qMax(1.0, qreal(qFloor(scale)));
    const QRectF area(QPointF(0, 0), QSizeF((size * scale).toSize()));
    const auto ring = [&](qreal from, qreal width, const QColor& colour) {
        painter.setPen(QPen(colour, width));
        const qreal in = from + width / 2;
        painter.drawRoundedRect(area.adjusted(in, in, -in, -in), 4 * scale, 4 * scale);
    };
    ring(0, unit, QColor(0x0B, 0x14, 0x30));
    ring(unit, 2 * unit, QColor(0xF4, 0xC8, 0x4E));
}
