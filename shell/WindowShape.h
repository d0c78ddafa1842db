#pragma once

#include <QPoint>
#include <QRect>
#include <cstdint>

class QWidget;

// The shape and the place of the game window.
namespace WindowShape {

// The visible rectangle, in pixels of a window with a title bar: everything outside it is cut off. On screen
// its top left corner is the origin of the design positions.
inline constexpr QRect kRegion{QPoint(2, 22), QPoint(400, 432)};

// Makes `window` frameless, with the fixed size of the visible rectangle, 399 x 411.
void Apply(QWidget& window);

// Whether the window system is Wayland, where a program cannot place its windows.
[[nodiscard]] bool IsOnWayland();

// The top left corner of `place` once moved onto `screen`, as far as it fits.
[[nodiscard]] QPoint OnScreen(QRect place, const QRect& screen);

// Moves `window` back onto its screen whenever a screen changes size.
void KeepOnScreens(QWidget& window);

}  // namespace WindowShape

// Drags a window by its background. The left button hands the drag to the window system if it supports that;
// otherwise the window follows the mouse. On Wayland, where a program cannot move its window, the other
// buttons hand it over too. The drag starts with the first motion: handing over a mere click could leave the
// window stuck to the mouse.
class WindowMove {
public:
    // A press at `global`, in screen coordinates. `button`: kLeftButton and so on.
    void Press(const QWidget& window, QPoint global, std::int16_t button);
    // The mouse moved with a button held.
    void Move(QWidget& window, QPoint global);
    void Release() { state_ = State::Idle; }

private:
    enum class State { Idle, Pressed, PressedToHandOver, Following };
    State state_ = State::Idle;
    QPoint grip_;  // the position of the press in the window
};
