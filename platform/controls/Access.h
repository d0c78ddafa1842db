#pragma once

#include <QAccessible>
#include <QString>
#include <functional>

// How a control presents itself to assistive technology and the keyboard. Names and states are computed on
// demand, so they always match the screen and cost nothing while nobody asks.
struct Access {
    QAccessible::Role role = QAccessible::NoRole;  // none: decoration, which is left out
    // The accessible name. A control with a role but no name is described by Qt.
    std::function<QString()> name{};
    std::function<void()> press{};   // what a click does; empty when it cannot be pressed
    std::function<bool()> chosen{};  // whether it is the chosen one of several; empty when there is no choice
    std::function<int()> percent{};  // progress, 0..100; empty for none
};

// The base of all controls that can be described.
class HasAccess {
public:
    Access access;
};

// The description of `object`; null when it has none.
[[nodiscard]] const Access* AccessOf(const QObject* object);

// Whether `control` can be pressed by a key: one that says so itself, or a button of the toolkit.
[[nodiscard]] bool IsPressable(const QWidget& control);

// Exposes these descriptions to assistive technology. Called once, before the first window.
void InstallAccess();
