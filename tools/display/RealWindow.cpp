#include "tools/display/RealWindow.h"

#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/XTest.h>
#include <X11/extensions/Xdamage.h>
#include <poll.h>

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

namespace {

// A window may go while it is being asked about; the answer is then merely no.
int IgnoreError(Display*, XErrorEvent*) {
    return 0;
}

milliseconds Left(Clock::time_point end) {
    return std::chrono::duration_cast<milliseconds>(end - Clock::now());
}

}  // namespace

RealWindow::RealWindow(const QString& display, const QString& title, const RealWindow* other)
    : display_(XOpenDisplay(display.toLatin1().constData())) {
    if (!display_) return;
    XSetErrorHandler(IgnoreError);
    XSelectInput(display_, DefaultRootWindow(display_), SubstructureNotifyMask);
    WatchDamage();
    const unsigned long except = other ? other->window_ : 0;
    if (title.isEmpty())
        window_ = DefaultRootWindow(display_);
    else
        Await([&] { return (window_ = Find(DefaultRootWindow(display_), title, except)) != 0; });
    if (window_ != 0) place_ = Place();
}

QRect RealWindow::Place() const {
    XWindowAttributes attributes;
    XGetWindowAttributes(display_, window_, &attributes);
    int x = 0, y = 0;
    ::Window child = 0;
    XTranslateCoordinates(display_, window_, attributes.root, 0, 0, &x, &y, &child);
    return {x, y, attributes.width, attributes.height};
}

RealWindow::~RealWindow() {
    if (display_) XCloseDisplay(display_);
}

unsigned long RealWindow::Find(unsigned long parent, const QString& title, unsigned long except) const {
    ::Window root = 0, above = 0, *children = nullptr, found = 0;
    unsigned count = 0;
    if (!XQueryTree(display_, parent, &root, &above, &children, &count)) return 0;
    for (unsigned i = 0; i < count && !found; ++i) {
        char* name = nullptr;
        XWindowAttributes attributes;
        const bool named = XFetchName(display_, children[i], &name) && title == QString::fromUtf8(name);
        if (name) XFree(name);
        if (named && children[i] != except && XGetWindowAttributes(display_, children[i], &attributes) &&
            attributes.map_state == IsViewable)
            found = children[i];
        if (!found) found = Find(children[i], title, except);
    }
    if (children) XFree(children);
    return found;
}

void RealWindow::WatchDamage() {
    int errorBase = 0;
    XDamageQueryExtension(display_, &damageEvent_, &errorBase);
    XDamageCreate(display_, DefaultRootWindow(display_), XDamageReportRawRectangles);
    XSync(display_, False);
}

bool RealWindow::AwaitDamage(milliseconds limit) const {
    const auto end = Clock::now() + limit;
    while (!XPending(display_)) {
        pollfd connection{ConnectionNumber(display_), POLLIN, 0};
        if (Left(end).count() <= 0 || poll(&connection, 1, static_cast<int>(Left(end).count())) == 0)
            return false;
    }
    XEvent event;
    while (XPending(display_)) XNextEvent(display_, &event);
    return true;
}

bool RealWindow::Await(const std::function<bool()>& seen, milliseconds limit) const {
    const auto end = Clock::now() + limit;
    while (!seen())
        if (!AwaitDamage(Left(end))) return seen();
    return true;
}

QImage RealWindow::Look(const QRect& area) const {
    XImage* pixels = XGetImage(display_, DefaultRootWindow(display_), place_.x() + area.x(),
                               place_.y() + area.y(), static_cast<unsigned>(area.width()),
                               static_cast<unsigned>(area.height()), AllPlanes, ZPixmap);
    if (!pixels) return {};
    const QImage view(reinterpret_cast<const uchar*>(pixels->data), area.width(), area.height(),
                      pixels->bytes_per_line, QImage::Format_RGB32);
    QImage image = view.convertToFormat(QImage::Format_ARGB32).convertToFormat(QImage::Format_RGB32);
    XDestroyImage(pixels);
    return image;
}

void RealWindow::Focus() const {
    XSetInputFocus(display_, window_, RevertToParent, CurrentTime);
    XSync(display_, False);
}

void RealWindow::Key(const char* keysym) const {
    const KeyCode code = XKeysymToKeycode(display_, XStringToKeysym(keysym));
    XTestFakeKeyEvent(display_, code, True, 0);
    XTestFakeKeyEvent(display_, code, False, 0);
    XFlush(display_);
}

void RealWindow::MoveMouse(QPoint at) const {
    XTestFakeMotionEvent(display_, -1, place_.x() + at.x(), place_.y() + at.y(), 0);
    XFlush(display_);
}

void RealWindow::Press(unsigned button) const {
    XTestFakeButtonEvent(display_, button, True, 0);
    XFlush(display_);
}

void RealWindow::Release(unsigned button) const {
    XTestFakeButtonEvent(display_, button, False, 0);
    XFlush(display_);
}

void RealWindow::Click(QPoint at, unsigned button) const {
    MoveMouse(at);
    Press(button);
    Release(button);
}
