#pragma once

#include <QImage>
#include <QRect>
#include <chrono>
#include <functional>

struct _XDisplay;  // NOLINT(bugprone-reserved-identifier): the name that Xlib gives it

// A window on a real X display as a person meets it: seen as pixels, reached with keyboard and mouse.
// Positions are device pixels from the window's corner.
class RealWindow {
public:
    // Waits until a window with the title `title`, and another one than `other`, is mapped on `display`.
    // Without a title it is the whole screen.
    RealWindow(const QString& display, const QString& title, const RealWindow* other = nullptr);
    ~RealWindow();
    RealWindow(const RealWindow&) = delete;
    RealWindow& operator=(const RealWindow&) = delete;

    [[nodiscard]] bool Found() const { return window_ != 0; }
    [[nodiscard]] QRect OnScreen() const { return place_; }

    // What the window shows at `area`.
    [[nodiscard]] QImage Look(const QRect& area) const;
    [[nodiscard]] QImage Look() const { return Look(QRect(QPoint(0, 0), place_.size())); }
    // Waits until `seen` holds of what is shown; false when it does not within `limit`. Looks again only when
    // something on the screen has changed.
    bool Await(const std::function<bool()>& seen,
               std::chrono::milliseconds limit = std::chrono::seconds(20)) const;

    // Gives the window the keyboard at once; a click leaves it to the window manager when.
    void Focus() const;
    void Key(const char* keysym) const;  // X's name of the key: "space", "Left", "p"
    void MoveMouse(QPoint at) const;
    void Click(QPoint at, unsigned button = 1) const;
    void Press(unsigned button) const;
    void Release(unsigned button) const;

private:
    [[nodiscard]] QRect Place() const;
    [[nodiscard]] unsigned long Find(unsigned long parent, const QString& title, unsigned long except) const;
    void WatchDamage();
    [[nodiscard]] bool AwaitDamage(std::chrono::milliseconds limit) const;

    _XDisplay* display_;
    unsigned long window_ = 0;
    int damageEvent_ = 0;
    QRect place_;
};
