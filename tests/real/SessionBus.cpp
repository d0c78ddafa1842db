#include "tests/real/SessionBus.h"

SessionBus::SessionBus(const QProcessEnvironment& environment) : environment_(environment) {
    environment_.insert("XDG_RUNTIME_DIR", runtime_.path());
    environment_.remove("DBUS_SESSION_BUS_ADDRESS");
    daemon_.setProcessEnvironment(environment_);
    daemon_.start("dbus-daemon", {"--session", "--nofork", "--nopidfile", "--print-address=1"});
    while (!daemon_.canReadLine())
        if (!daemon_.waitForReadyRead(20000)) return;
    environment_.insert("DBUS_SESSION_BUS_ADDRESS", QString::fromLatin1(daemon_.readLine()).trimmed());
}

SessionBus::~SessionBus() {
    daemon_.terminate();
    if (!daemon_.waitForFinished(3000)) daemon_.kill(), daemon_.waitForFinished(3000);
}
