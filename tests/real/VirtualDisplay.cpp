#include "tests/real/VirtualDisplay.h"

namespace {

void End(QProcess& process) {
    process.terminate();
    if (!process.waitForFinished(3000)) process.kill(), process.waitForFinished(3000);
}

}  // namespace

VirtualDisplay::VirtualDisplay() {
    // The server chooses a free number and writes it when it is ready for clients.
    server_.start("Xvfb", {"-displayfd", "1", "-screen", "0", "1400x1000x24", "-nolisten", "tcp"});
    while (!server_.canReadLine())
        if (!server_.waitForReadyRead(20000)) return;
    name_ = ':' + QString::fromLatin1(server_.readLine()).trimmed();
    windowManager_.setProcessEnvironment(Environment());
    windowManager_.start("openbox", {"--sm-disable"});
    windowManager_.waitForStarted();
}

VirtualDisplay::~VirtualDisplay() {
    End(windowManager_);
    End(server_);
}

QProcessEnvironment VirtualDisplay::Environment() const {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("DISPLAY", name_);
    environment.insert("QT_QPA_PLATFORM", "xcb");
    environment.remove("WAYLAND_DISPLAY");
    return environment;
}
