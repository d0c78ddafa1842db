#include "shell/WindowShape.h"

#include <QWidget>
#include <QWindow>

void WindowShape::Apply(QWidget& window) {
    window.setWindowFlags(Qt::Window | Qt::FramelessWindowHint | Qt::WindowSystemMenuHint |
                          Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint);
    window.setFixedSize(kRegion.size());
}

void WindowMove::Press(QWidget& window, QPoint global, bool leftButton) {
    grip_ = global - window.pos();
    QWindow* handle = window.windowHandle();
    following_ = !(leftButton && handle && handle->startSystemMove());
}

void WindowMove::Move(QWidget& window, QPoint global) const {
    if (following_) window.move(global - grip_);
}
