#pragma once

#include <QStringList>
#include <bitset>
#include <vector>

#include "screen/frmGame.h"

// Tells assistive technology what has changed in the game window, and the news of the game in a sentence: a
// line scored, a card locked because the time was up, time running out, a pause, the end. It compares the
// window with what it last told, each time the program has nothing else to do; while no such technology is
// there it does nothing.
class Narrator {
public:
    // `form` is a window with all its controls described, and outlives this.
    explicit Narrator(frmGame& form);

    // Tells what is new. Runs by itself.
    void Look();
    // The lock that is going on was the time's and not the player's.
    void TimeIsUp() { timeIsUp_ = true; }

private:
    // A control, with what was last told of it.
    struct Told {
        QWidget* control;
        const Access& access;
        QString name;
        bool chosen = false;
        int percent = 0;
    };
    // How the game stands, as far as news are about it.
    struct Standing {
        frmGame::Play play = frmGame::Play::Off;
        std::int32_t score = 0, percent = 0;
        int active = -1;             // cell
        std::bitset<kCells> locked;  // cells
    };

    static void TellChanges(Told& told);
    void TellActiveCard();
    [[nodiscard]] Standing Stands() const;
    [[nodiscard]] QString TimedLock(const Standing& now) const;
    [[nodiscard]] QStringList News(const Standing& now) const;
    void Say(const QString& sentence);

    frmGame& form_;
    std::vector<Told> told_;
    Standing standing_;
    bool timeIsUp_ = false;  // and not told yet
    QString turn_;
    Control<QWidget> news_;  // a spot nobody sees; its name is what was said last
    QString said_;
};
