#pragma once

#include <QMouseEvent>
#include <functional>

#include "platform/Access.h"
#include "platform/Colour.h"
#include "platform/Twips.h"

// A Qt widget as a control of the game: named, placed in twips, shown or hidden by itself, described to who
// does not see it. Positions keep the twips they were given, so that code computing with them never meets
// rounded values.
template <class Widget>
class Control : public Widget, public HasAccess {
public:
    Control(QWidget* parent, const Placement& placement) : Widget(parent), place_(placement.place) {
        this->setObjectName(placement.name);
        Settle();
    }

    [[nodiscard]] Twips Left() const { return place_.left; }
    [[nodiscard]] Twips Top() const { return place_.top; }
    [[nodiscard]] Twips Width() const { return place_.width; }
    [[nodiscard]] Twips Height() const { return place_.height; }
    void Left(Twips left) { place_.left = left, Settle(); }
    void Top(Twips top) { place_.top = top, Settle(); }
    void Width(Twips width) { place_.width = width, Settle(); }
    void Height(Twips height) { place_.height = height, Settle(); }

    // Whether the control itself is shown; a parent that is hidden does not count.
    [[nodiscard]] bool Visible() const { return !this->isHidden(); }
    void Visible(bool visible) { this->setVisible(visible); }
    [[nodiscard]] bool Enabled() const { return this->isEnabledTo(this->parentWidget()); }
    void Enabled(bool enabled) { this->setEnabled(enabled); }

private:
    void Settle() { this->setGeometry(place_.InPixels()); }

    TwipsRect place_;
};

// The mouse buttons as handlers receive them.
inline constexpr std::int16_t kLeftButton = 1;
inline constexpr std::int16_t kRightButton = 2;
inline constexpr std::int16_t kMiddleButton = 4;

// What a mouse handler is told besides the control: the button, or the sum of those held during a move; the
// sum of the modifier keys (shift 1, control 2, alt 4); the position in pixels.
struct MouseInput {
    std::int16_t button = 0, shift = 0;
    float x = 0, y = 0;
};
[[nodiscard]] MouseInput ToMouseInput(const QMouseEvent& event);

// A control that hears the mouse. It swallows what it hears: a press on a control never moves the window,
// whether the control is enabled or not.
template <class Widget>
class MouseControl : public Control<Widget> {
public:
    using Handler = std::function<void(const MouseInput&)>;

    MouseControl(QWidget* parent, const Placement& placement) : Control<Widget>(parent, placement) {
        this->setAttribute(Qt::WA_NoMousePropagation);
        this->setMouseTracking(true);
    }

    Handler onMouseDown, onMouseUp;
    Handler onMouseMove;            // with and without a button held
    std::function<void()> onClick;  // the left button was released inside; not on what is hidden by then

protected:
    void mousePressEvent(QMouseEvent* event) override { Call(onMouseDown, *event); }
    // The second press of a double click is a press like any other.
    void mouseDoubleClickEvent(QMouseEvent* event) override { Call(onMouseDown, *event); }
    void mouseMoveEvent(QMouseEvent* event) override { Call(onMouseMove, *event); }
    void mouseReleaseEvent(QMouseEvent* event) override {
        const bool inside = this->isVisible() && this->rect().contains(event->pos());
        const bool click = inside && event->button() == Qt::LeftButton;
        Call(onMouseUp, *event);
        if (click && onClick) onClick();
    }

private:
    static void Call(const Handler& handler, const QMouseEvent& event) {
        if (handler) handler(ToMouseInput(event));
    }
};
