#pragma once

#include <QString>

class QWidget;

// The message boxes of the game.
class Dialogs {
public:
    virtual ~Dialogs() = default;
    // Shows one sentence with an OK button and returns when it is dismissed.
    virtual void Tell(QWidget* owner, const QString& sentence) = 0;
    // Asks with an information icon, Yes and No (the default); false for anything but Yes.
    [[nodiscard]] virtual bool Ask(QWidget* owner, const QString& question) = 0;
};

// Qt's message boxes with the game's icons.
class MessageBoxes final : public Dialogs {
public:
    void Tell(QWidget* owner, const QString& sentence) override;
    [[nodiscard]] bool Ask(QWidget* owner, const QString& question) override;
};
