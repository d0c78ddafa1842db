#pragma once

#include <QString>

// Asks the desktop to show the web address `address`. Returns at once and ignores failures.
void OpenAddress(const QString& address);
