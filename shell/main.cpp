#include <pwd.h>
#include <unistd.h>

#include <QApplication>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <future>

#include "platform/fonts/Fonts.h"
#include "platform/language/Language.h"
#include "platform/language/Tesselor.h"
#include "platform/memory/Memory.h"
#include "screen/Look.h"
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

// Why there is no window. `message`: Qt's, which lists the plugins it has found.
QString WhyNoWindow(const QString& message) {
    if (!qEnvironmentVariableIsSet("WAYLAND_DISPLAY") || message.contains(QLatin1String("wayland")))
        return Tesselor::tr("tesselor cannot show its window: no display is available.");
    //: %1: a name such as qt6-wayland
    const QString text = Tesselor::tr(
        "tesselor cannot show its window: Qt's plugin for Wayland is missing. It is in the package %1.");
    return text.arg(QLatin1String(WaylandPackage()));
}

// Qt aborts when it cannot reach a display. Exit cleanly instead of dumping core.
void EndWithoutDisplay(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    if (type != QtFatalMsg || !message.contains(QLatin1String("no Qt platform plugin")))
        return theUsualHandler(type, context, message);
    ChooseLanguage();
    std::fprintf(stderr, "%s\n", qPrintable(WhyNoWindow(message)));
    std::_Exit(EXIT_FAILURE);
}

}  // namespace

int main(int argc, char* argv[]) {
    if (const auto status = AnswerCommandLine(argc, argv)) return *status;
    // Otherwise Qt would store the player's files in the root folder.
    if (!qEnvironmentVariableIsSet("HOME"))
        if (const passwd* user = getpwuid(getuid())) qputenv("HOME", user->pw_dir);
    Memory::ShareHeap();
    // Reads the settings for fonts while Qt waits for the display. Their numbers are read in the locale,
    // which Qt sets meanwhile: to what it is already.
    std::setlocale(LC_ALL, "");
    const auto fonts = std::async(Fonts::ListOnly, Look::kFamily);
    theUsualHandler = qInstallMessageHandler(EndWithoutDisplay);
    QApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QApplication application(argc, argv);
    fonts.wait();
    qInstallMessageHandler(theUsualHandler);
    QApplication::setApplicationName(QStringLiteral("Tesselor"));
    QApplication::setDesktopFileName(QStringLiteral(TESSELOR_ID));
    const int status = mdlMain::Main();
    // Qt 6.4 can wait forever for its own thread when it leaves a Wayland display.
    if (WindowShape::IsOnWayland()) std::_Exit(status);
    return status;
}
