#pragma once

#include <QMouseEvent>
#include <functional>

#include "platform/controls/Control.h"

// The mouse buttons as handlers receive them.
inline constexpr std::int16_t kLeftButton = 1;
inline constexpr std::int16_t kRightButton = 2;
inline constexpr std::int16_t kMiddleButton = 4;

// The arguments of a mouse handler: the button, or the sum of those held during a move; the sum of
// the modifier keys (shift 1, control 2, alt 4); the position in pixels.
struct MouseInput {
    std::int16_t button = 0, shift = 0;
    float x = 0, y = 0;
};
[[nodiscard]] MouseInput ToMouseInput(const QMouseEvent& event);
using MouseHandler = std::function<void(const MouseInput&)>;

// A control with mouse handlers. It never propagates mouse events, so a press on it cannot move the window,
// even if it is disabled. It can show a left-button press while the mouse is over it.
class MouseControl : public Control<QWidget> {
public:
    MouseControl(QWidget* parent, const Placement& placement);

    // Whether a press is shown; off for controls without a click action.
    void ShowsPress(bool shows) { showsPress_ = shows; }

    MouseHandler onMouseDown, onMouseUp;
    MouseHandler onReleaseInside;   // any button; not if hidden by then
    MouseHandler onMouseMove;       // with and without a button held
    std::function<void()> onClick;  // left button released inside; not if hidden by then

protected:
    [[nodiscard]] bool IsPressed() const { return pressed_ && over_; }

    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void Press(bool pressed, bool over);

    bool showsPress_ = false, pressed_ = false, over_ = false;
};
