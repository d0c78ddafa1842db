#include "shell/WindowShape.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <QWindow>

#include "platform/controls/MouseControl.h"

namespace {

// X11 takes over only the left button's drag. GNOME does not end one when the right button is released: the
// window would stick to the mouse.
bool IsHandedOver(std::int16_t button) {
    if (button == kLeftButton) return true;
    const bool sticks = button == kRightButton && qgetenv("XDG_CURRENT_DESKTOP").contains("GNOME");
    return WindowShape::IsOnWayland() && !sticks;
}

}  // namespace

void WindowShape::Apply(QWidget& window) {
    window.setWindowFlags(Qt::Window | Qt::FramelessWindowHint | Qt::WindowSystemMenuHint |
                          Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint);
    window.setFixedSize(kRegion.size());
}

bool WindowShape::IsOnWayland() {
    return QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

QPoint WindowShape::OnScreen(QRect place, const QRect& screen) {
    place.moveRight(qMin(place.right(), screen.right()));
    place.moveBottom(qMin(place.bottom(), screen.bottom()));
    return {qMax(place.left(), screen.left()), qMax(place.top(), screen.top())};
}

void WindowShape::KeepOnScreens(QWidget& window) {
    const auto watch = [&window](const QScreen* screen) {
        QObject::connect(screen, &QScreen::availableGeometryChanged, &window, [&window] {
            window.move(OnScreen(window.frameGeometry(), window.screen()->availableGeometry()));
        });
    };
    for (const QScreen* screen : QGuiApplication::screens()) watch(screen);
    QObject::connect(qApp, &QGuiApplication::screenAdded, &window, watch);
}

void WindowMove::Press(const QWidget& window, QPoint global, std::int16_t button) {
    grip_ = global - window.pos();
    state_ = IsHandedOver(button) ? State::PressedToHandOver : State::Pressed;
}

void WindowMove::Move(QWidget& window, QPoint global) {
    if (state_ == State::Idle) return;
    QWindow* handle = window.windowHandle();
    if (state_ == State::PressedToHandOver && handle && handle->startSystemMove()) return Release();
    state_ = State::Following;
    window.move(global - grip_);
}
