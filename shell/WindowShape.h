#pragma once

#include <QPoint>
#include <QRect>

class QWidget;

// The shape of the game window and its being moved by the background.
namespace WindowShape {

// The visible rectangle, in pixels of a window with a title bar: everything outside it is cut away. On screen
// its top left corner is the origin of the design positions.
inline constexpr QRect kRegion{QPoint(2, 22), QPoint(400, 432)};

// Cuts `window` down to the visible rectangle: without a title bar, 399 x 411, and no other size.
void Apply(QWidget& window);

// `place` moved so that it lies on `screen`, as far as it fits; returns its corner.
[[nodiscard]] QPoint OnScreen(QRect place, const QRect& screen);

// Brings `window` back whenever a screen changes its size.
void KeepOnScreens(QWidget& window);

}  // namespace WindowShape

// Drags a window by its background. The left button hands the drag to the window system if it supports that;
// otherwise the window follows the mouse. The drag starts with the first motion: handing over a mere click
// could leave the window stuck to the mouse.
class WindowMove {
public:
    // A press at `global`, in screen coordinates. `leftButton`: the button the window system moves with.
    void Press(const QWidget& window, QPoint global, bool leftButton);
    // The mouse moved with a button held.
    void Move(QWidget& window, QPoint global);
    void Release() { state_ = State::Idle; }

private:
    enum class State { Idle, Pressed, PressedLeft, Following };
    State state_ = State::Idle;
    QPoint grip_;  // where the window is held, from its corner
};
