#pragma once

#include <QProcess>

// A display of one's own, without a screen or a person at it: an X server in memory and a window manager.
// Both end with this.
class VirtualDisplay {
public:
    VirtualDisplay();
    ~VirtualDisplay();

    // Name of the display (":7"); empty when the server did not start.
    [[nodiscard]] const QString& Name() const { return name_; }
    // This process's environment with the display in it, and without any other.
    [[nodiscard]] QProcessEnvironment Environment() const;

private:
    QProcess server_, windowManager_;
    QString name_;
};
