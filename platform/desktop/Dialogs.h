#pragma once

#include <QString>

class QWidget;

// The message boxes of the game.
class Dialogs {
public:
    virtual ~Dialogs() = default;
    // Shows one sentence with an OK button and returns when it has been read.
    virtual void Tell(QWidget* owner, const QString& sentence) = 0;
    // Asks with the buttons Yes and No and an information icon; anything but Yes is no, and No the default.
    [[nodiscard]] virtual bool Ask(QWidget* owner, const QString& question) = 0;
};

// Qt's message boxes with the game's icons.
class MessageBoxes final : public Dialogs {
public:
    void Tell(QWidget* owner, const QString& sentence) override;
    [[nodiscard]] bool Ask(QWidget* owner, const QString& question) override;
};
