#include "platform/controls/MouseControl.h"

namespace {

std::int16_t ButtonBits(Qt::MouseButtons buttons) {
    std::int16_t bits = 0;
    if (buttons & Qt::LeftButton) bits = static_cast<std::int16_t>(bits | kLeftButton);
    if (buttons & Qt::RightButton) bits = static_cast<std::int16_t>(bits | kRightButton);
    if (buttons & Qt::MiddleButton) bits = static_cast<std::int16_t>(bits | kMiddleButton);
    return bits;
}

void Call(const MouseHandler& handler, const QMouseEvent& event) {
    if (handler) handler(ToMouseInput(event));
}

}  // namespace

MouseInput ToMouseInput(const QMouseEvent& event) {
    const bool move = event.type() == QEvent::MouseMove;
    const auto keys = event.modifiers();
    const int shift = (keys & Qt::ShiftModifier ? 1 : 0) + (keys & Qt::ControlModifier ? 2 : 0) +
                      (keys & Qt::AltModifier ? 4 : 0);
    return {ButtonBits(move ? event.buttons() : Qt::MouseButtons(event.button())),
            static_cast<std::int16_t>(shift), static_cast<float>(event.position().x()),
            static_cast<float>(event.position().y())};
}

MouseControl::MouseControl(QWidget* parent, const Placement& placement)
    : Control<QWidget>(parent, placement) {
    setAttribute(Qt::WA_NoMousePropagation);
    setMouseTracking(true);
}

void MouseControl::mousePressEvent(QMouseEvent* event) {
    Press(showsPress_ && event->button() == Qt::LeftButton, true);
    Call(onMouseDown, *event);
}

// Treat the second press of a double click like any other.
void MouseControl::mouseDoubleClickEvent(QMouseEvent* event) {
    mousePressEvent(event);
}

void MouseControl::mouseMoveEvent(QMouseEvent* event) {
    Press(pressed_, rect().contains(event->pos()));
    Call(onMouseMove, *event);
}

// Release before the handlers run: a click may switch screens or open a dialog.
void MouseControl::mouseReleaseEvent(QMouseEvent* event) {
    Press(pressed_ && event->button() != Qt::LeftButton, over_);
    const bool inside = isVisible() && rect().contains(event->pos());
    const bool click = inside && event->button() == Qt::LeftButton;
    Call(onMouseUp, *event);
    if (inside) Call(onReleaseInside, *event);
    if (click && onClick) onClick();
}

void MouseControl::hideEvent(QHideEvent* /*event*/) {
    Press(false, over_);
}

void MouseControl::Press(bool pressed, bool over) {
    const bool before = IsPressed();
    pressed_ = pressed;
    over_ = over;
    if (IsPressed() != before) update();
}
