#pragma once

#include <QStringList>
#include <vector>

#include "platform/controls/Control.h"

class frmGame;

// Notifies assistive technology of changes in the game window and announces events of the game, whenever the
// event loop is about to block. Does nothing without a listener.
class Narrator {
public:
    // `form` is a window with all its controls described, and outlives this.
    explicit Narrator(frmGame& form);

    // A sentence to be told at the next look, after those added before it.
    void Add(const QString& news);
    // Tells what is new. Runs by itself.
    void Look();

private:
    // A control, with what was last told of it.
    struct Told {
        QWidget* control;
        const Access& access;
        QString name;
        bool chosen = false;
        int percent = 0;
    };

    static void TellChanges(Told& told);
    void TellActiveCard();
    void Say(const QString& sentence);

    frmGame& form_;
    std::vector<Told> told_;
    QStringList news_;  // not told yet
    QString turn_;
    Control<QWidget> spot_;  // nobody sees it; its name is what was said last
    QString said_;
};
