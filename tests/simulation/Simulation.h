#pragma once

#include <rapidcheck.h>

#include <QTest>

#include "screen/storage/HighScoreTable.h"
#include "tests/support/GameWindow.h"
#include "tests/support/StoreFile.h"

struct Simulation;

struct EventKind {
    const char* name;
    void (*happen)(Simulation& world, std::uint32_t choice);
};
using Event = std::pair<EventKind, std::uint32_t>;  // with a number for its details
using Script = std::vector<Event>;

// Up to `most` events (Events.cpp).
[[nodiscard]] rc::Gen<Script> AnyScript(int most);

// What is wrong although it must hold whenever the program waits for the next event; empty when all is well.
[[nodiscard]] std::string Broken(const Simulation& world);  // Invariants.cpp

// The stored table, row by row: score, name, date.
[[nodiscard]] QList<QStringList> StoredTable();

// The program with its folder, its store and its player, all on virtual time. It is started again, with the
// same folder and store, whenever it has ended.
struct Simulation : StoreFile, GameWindow {
    // `seed`: of the game's own chance.
    explicit Simulation(unsigned seed);

    // Lets `events` happen, up to the first that breaks something; some of those that come in a
    // demonstration's time inside it. May be called again when nothing broke.
    void Play(const Script& events);

    std::string broken;   // what broke, and after which event; empty while nothing has
    int gamesBefore = 0;  // played in windows that are gone

    // --- for the events ---
    void Mouse(QTest::MouseAction action, QPoint at, Qt::MouseButton button);
    void Click(const QWidget& control, Qt::MouseButton button = Qt::LeftButton) {
        Mouse(QTest::MouseClick, control.mapTo(form.get(), control.rect().center()), button);
    }
    void Key(int key, int repeats = 0);
    void Attend();  // the player turns to the window

    // --- for the invariants ---
    [[nodiscard]] bool IsOpen() const { return form->isVisible() && !ended; }

    const QByteArray skin = ReadFile(Art("test.png"));
    QTemporaryDir outside;  // where the player keeps pictures
    StringStore failingStore{QStringLiteral("/dev/null/store.txt")};
    QWidget otherWindow;
    bool inDemo = false, onlyTime = false;  // the event was nothing but time
    qsizetype mayGo = 0;                    // skins that the player has given up since the latest event
    // A demonstration was stopped in this game: it finishes its step, and may have dealt a card of its script
    // by that, moved the active card, or left a card beside another screen.
    bool stepLeftOver = false;

    // What was so after the event before.
    struct Before {
        int games = 0, turns = 0;
        std::int32_t score = 0;
        frmGame::Play play = frmGame::Play::Off;
        std::chrono::milliseconds limit{0};  // when the lock time is up
        QStringList files;
        QByteArray store;
        QList<QStringList> table;
    } before;

private:
    void Happen(const Event& event);
    void Inside();  // while a demonstration lets events run
    void Remember();

    const Script* events_ = nullptr;
    std::size_t next_ = 0;
    unsigned calls_ = 0;  // of a demonstration, since the event before
};
