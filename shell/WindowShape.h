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

}  // namespace WindowShape

// Moves a window with the mouse, from a press on its background until the release. The window system does it
// where it can; elsewhere, and for the buttons it does not move with, the window follows the mouse.
class WindowMove {
public:
    // A press at `global`, in screen coordinates. `leftButton`: the button the window system moves with.
    void Press(QWidget& window, QPoint global, bool leftButton);
    void Move(QWidget& window, QPoint global) const;
    void Release() { following_ = false; }

private:
    bool following_ = false;
    QPoint grip_;  // where the window is held, from its corner
};
