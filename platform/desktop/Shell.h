#pragma once

#include <QString>

// Asks the desktop to show the web address `address`. Returns at once; a failure goes unnoticed.
void OpenAddress(const QString& address);
