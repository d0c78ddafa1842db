#pragma once

#include <QStringList>
#include <vector>

#include "platform/controls/Control.h"

class Frame;
class frmGame;

// Notifies assistive technology of changes in the game window and announces events of the game, whenever the
// event loop is about to block. Does nothing without a listener. Steps of the time bar are not notified:
// screen readers would speak their percentages in between. Its last quarter is announced.
class Narrator {
public:
    // `form`: all its controls are described; it must outlive this.
    explicit Narrator(frmGame& form);

    // Queues a sentence for the next look.
    void Add(const QString& news);
    // A lock: the points of its lines.
    void AddLock();
    // The end of the game.
    void AddEnd();
    // A screen of the menu: its name and texts.
    void AddScreen(const Frame& screen);
    // The next lock is due to the time limit: AddLock or AddEnd also says so, and where the card went unless
    // it completed a line. Without either, the card was an eraser.
    void ExpectTimedLock() { timedLock_ = true; }
    void AddTimedEraser();
    // Announces what is new. Runs by itself.
    void Look();

private:
    void AddTimedLock();

    // A control and its state as last announced.
    struct Told {
        QWidget* control;
        const Access& access;
        QString name;
        bool chosen = false;
    };

    static void TellChanges(Told& told);
    // The cell of the active card if it or its card is new, else null. It has the focus while the board has
    // the keyboard.
    QWidget* NewActiveCell();

    frmGame& form_;
    std::vector<Told> told_;
    QStringList news_;  // not announced yet
    bool timedLock_ = false;
    QString turn_;                      // the active card as last told
    const QWidget* focused_ = nullptr;  // the cell that has the focus
};
