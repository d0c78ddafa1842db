#include "platform/desktop/Shell.h"

#include <QProcess>

// The desktop's own opener in a process of its own: the toolkit's call may wait for a portal that does not
// answer.
void OpenAddress(const QString& address) {
    QProcess opener;
    opener.setProgram(QStringLiteral("xdg-open"));
    opener.setArguments({address});
    opener.setStandardOutputFile(QProcess::nullDevice());
    opener.setStandardErrorFile(QProcess::nullDevice());
    opener.startDetached();
}
