#pragma once

#include <QProcess>
#include <QTemporaryDir>

// A message bus of one's own for the programs of one display, as a desktop session has; the accessibility
// services start on it by themselves. Ends with this.
class SessionBus {
public:
    // environment: of the display. Nobody else's bus is in it afterwards.
    explicit SessionBus(const QProcessEnvironment& environment);
    ~SessionBus();

    [[nodiscard]] const QProcessEnvironment& Environment() const { return environment_; }

private:
    QTemporaryDir runtime_;
    QProcessEnvironment environment_;
    QProcess daemon_;
};
