#pragma once

#include <QProcess>
#include <QTemporaryDir>

// A display of one's own, without a screen or a person at it: an X server in memory and a window manager.
// Both end with this.
class VirtualDisplay {
public:
    VirtualDisplay();
    ~VirtualDisplay();

    // Name of the display (":7"); empty when the server did not start.
    [[nodiscard]] const QString& Name() const { return name_; }
    // This process's environment with the display in it, and without any other; what a program keeps for its
    // user goes into a folder that ends with this.
    [[nodiscard]] QProcessEnvironment Environment() const;

private:
    QTemporaryDir config_;
    QProcess server_, windowManager_;
    QString name_;
};
