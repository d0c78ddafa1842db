#pragma once

#include <QAccessible>
#include <QString>
#include <functional>

// How a control presents itself to assistive technology and the keyboard. Names and states are computed on
// demand, so they always match the screen and cost nothing until queried.
struct Access {
    QAccessible::Role role = QAccessible::NoRole;  // none: decoration, not exposed
    // The accessible name. A control with a role but no name is described by Qt.
    std::function<QString()> name{};
    std::function<void()> press{};   // the click action; empty if not pressable
    std::function<bool()> chosen{};  // whether it is the chosen one of a group; empty outside groups
    std::function<int()> percent{};  // progress, 0..100; empty for none
};

// Base of all controls with a description.
class HasAccess {
public:
    Access access;
};

// The description of `object`; null when it has none.
[[nodiscard]] const Access* AccessOf(const QObject* object);

// Whether a key can press `control`: its description has an action, or it is a Qt button.
[[nodiscard]] bool IsPressable(const QWidget& control);

// Exposes these descriptions to assistive technology. Called once, before the first window.
void InstallAccess();
