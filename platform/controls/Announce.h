#pragma once

#include <QString>

class QWidget;

// Whether screen readers also read a changed name of what has the focus: those that understand newer Qt's
// announcements do.
inline constexpr bool kReadersFollowNames = QT_VERSION >= QT_VERSION_CHECK(6, 8, 0);

// Tells assistive technology of what happens in `window` and no control of it shows. Screen readers speak it.
// Does nothing without a listener.
void Announce(QWidget& window, const QString& sentence);
