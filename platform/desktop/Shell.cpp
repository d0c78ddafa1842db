#include "platform/desktop/Shell.h"

#include <QProcess>

// Run the desktop's opener in its own process: QDesktopServices can block on an unresponsive portal.
void OpenAddress(const QString& address) {
    QProcess opener;
    opener.setProgram(QStringLiteral("xdg-open"));
    opener.setArguments({address});
    opener.setStandardOutputFile(QProcess::nullDevice());
    opener.setStandardErrorFile(QProcess::nullDevice());
    opener.startDetached();
}
