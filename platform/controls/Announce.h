#pragma once

#include <QString>

class QWidget;

// Tells assistive technology of what happens in `window` and no control of it shows. Screen readers speak it.
// Does nothing without a listener.
void Announce(QWidget& window, const QString& sentence);
