#include "shell/WindowShape.h"

#include <QWidget>
#include <QWindow>

void WindowShape::Apply(QWidget& window) {
    window.setWindowFlags(Qt::Window | Qt::FramelessWindowHint | Qt::WindowSystemMenuHint |
                          Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint);
    window.setFixedSize(kRegion.size());
}

void WindowMove::Press(const QWidget& window, QPoint global, bool leftButton) {
    grip_ = global - window.pos();
    state_ = leftButton ? State::PressedLeft : State::Pressed;
}

void WindowMove::Move(QWidget& window, QPoint global) {
    if (state_ == State::Idle) return;
    QWindow* handle = window.windowHandle();
    if (state_ == State::PressedLeft && handle && handle->startSystemMove()) return Release();
    state_ = State::Following;
    window.move(global - grip_);
}
