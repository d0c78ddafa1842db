#include <malloc.h>
#include <pwd.h>
#include <unistd.h>

#include <QApplication>
#include <cstdio>
#include <cstdlib>

#include "shell/CommandLine.h"
#include "shell/WindowShape.h"
#include "shell/mdlMain.h"

namespace {

QtMessageHandler theUsualHandler = nullptr;

// The package with Qt's Wayland plugin on this system.
const char* WaylandPackage() {
    const QStringList others{"alpine", "centos", "fedora", "rhel"};
    return others.contains(QSysInfo::productType()) ? "qt6-qtwayland" : "qt6-wayland";
}

// Why there is no window. `message`: Qt's, which ends in advice to reinstall and the plugins it has found.
QString WhyNoWindow(const QString& message) {
    if (qEnvironmentVariableIsSet("WAYLAND_DISPLAY") && !message.contains(QLatin1String("wayland")))
        return QStringLiteral("Qt's plugin for Wayland is missing; it is in the package ") + WaylandPackage();
    return message.section(QStringLiteral(" Reinstalling"), 0, 0).simplified();
}

// Qt aborts when it cannot reach a display. Exit cleanly instead of dumping core.
void EndWithoutDisplay(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    if (type != QtFatalMsg) return theUsualHandler(type, context, message);
    std::fprintf(stderr, "tesselor cannot show its window: %s\n", qPrintable(WhyNoWindow(message)));
    std::_Exit(EXIT_FAILURE);
}

}  // namespace

int main(int argc, char* argv[]) {
    if (const auto status = AnswerCommandLine(argc, argv)) return *status;
    // Otherwise Qt would store the player's files in the root folder.
    if (const passwd* user = getpwuid(getuid()); user && !qEnvironmentVariableIsSet("HOME"))
        qputenv("HOME", user->pw_dir);
    mallopt(M_MMAP_THRESHOLD, 1 << 20);  // return freed pictures to the system
    mallopt(M_ARENA_MAX, 1);             // let the window reuse what the decoding thread frees
    theUsualHandler = qInstallMessageHandler(EndWithoutDisplay);
    QApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QApplication application(argc, argv);
    qInstallMessageHandler(theUsualHandler);
    QApplication::setApplicationName(QStringLiteral("Tesselor"));
    QApplication::setDesktopFileName(QStringLiteral("tesselor"));
    const int status = mdlMain::Main();
    // Qt 6.4 can wait forever for its own thread when it leaves a Wayland display.
    if (WindowShape::IsOnWayland()) std::_Exit(status);
    return status;
}
