#pragma once

#include <QAccessible>
#include <QString>
#include <functional>

// What a control is to a person who does not see the screen or does not use a mouse: assistive technology
// reads it, the keyboard presses it. Texts and states are asked for when they are needed, so they are always
// those of the screen and cost nothing while nobody asks.
struct Access {
    QAccessible::Role role = QAccessible::NoRole;  // none: decoration, which is left out
    // What it is or shows, as one would say it. A control with a role but without this is described by the
    // toolkit.
    std::function<QString()> name{};
    std::function<void()> press{};   // what a click does; empty when it cannot be pressed
    std::function<bool()> chosen{};  // whether it is the chosen one of several; empty when there is no choice
    std::function<int()> percent{};  // how far it has gone, 0..100; empty when nothing goes on
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

// Makes assistive technology meet the controls as they describe themselves. Called once, before the first
// window.
void InstallAccess();
