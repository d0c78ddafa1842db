#include "tools/display/VirtualDisplay.h"

#include <X11/Xatom.h>
#include <X11/Xlib.h>

#include <QDir>
#include <QFile>

namespace {

// Waits until a window manager has announced itself on the display `name`: a window mapped while one is only
// just starting may never be shown.
void AwaitWindowManager(const QString& name) {
    Display* display = XOpenDisplay(name.toLatin1().constData());
    if (!display) return;
    const ::Window root = DefaultRootWindow(display);
    const Atom announced = XInternAtom(display, "_NET_SUPPORTING_WM_CHECK", False);
    XSelectInput(display, root, PropertyChangeMask);
    const auto isThere = [&] {
        Atom type = 0;
        int format = 0;
        unsigned long count = 0, left = 0;
        unsigned char* value = nullptr;
        XGetWindowProperty(display, root, announced, 0, 1, False, XA_WINDOW, &type, &format, &count, &left,
                           &value);
        if (value) XFree(value);
        return count == 1;
    };
    XEvent event;
    while (!isThere()) XNextEvent(display, &event);
    XCloseDisplay(display);
}

// A window manager without uses of its own for the mouse: it would hold each click back to look at it first,
// and when the next one moved the mouse meanwhile, the held one would be taken to be there.
void LeaveClicksAlone(const QDir& config) {
    config.mkdir("openbox");
    QFile file(config.filePath("openbox/rc.xml"));
    if (!file.open(QIODevice::WriteOnly)) return;
    file.write("<openbox_config xmlns=\"http://openbox.org/3.4/rc\"><mouse/></openbox_config>");
}

void End(QProcess& process) {
    process.terminate();
    if (!process.waitForFinished(3000)) process.kill(), process.waitForFinished(3000);
}

}  // namespace

VirtualDisplay::VirtualDisplay() {
    // The server chooses a free number and writes it when it is ready for clients. Keys do not repeat: on a
    // busy machine any press is a long one.
    server_.start("Xvfb", {"-displayfd", "1", "-screen", "0", "1400x1000x24", "-nolisten", "tcp", "-r"});
    while (!server_.canReadLine())
        if (!server_.waitForReadyRead(20000)) return;
    name_ = ':' + QString::fromLatin1(server_.readLine()).trimmed();
    LeaveClicksAlone(QDir(config_.path()));
    windowManager_.setProcessEnvironment(Environment());
    windowManager_.start("openbox", {"--sm-disable"});
    if (windowManager_.waitForStarted()) AwaitWindowManager(name_);
}

VirtualDisplay::~VirtualDisplay() {
    End(windowManager_);
    End(server_);
}

QProcessEnvironment VirtualDisplay::Environment() const {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("DISPLAY", name_);
    environment.insert("QT_QPA_PLATFORM", "xcb");
    environment.insert("XDG_CONFIG_HOME", config_.path());
    environment.remove("WAYLAND_DISPLAY");
    return environment;
}
