#pragma once

#include <set>

#include "screen/HighScoreTable.h"
#include "tests/support/GameWindow.h"
#include "tests/support/StoreFile.h"

class Simulation;

// One thing that happens: a row of the table of events, and a number for its details.
struct Event {
    std::size_t kind = 0;
    std::uint32_t choice = 0;
};
using Script = std::vector<Event>;

struct EventKind {
    const char* name;
    std::size_t weight;  // how often it happens, beside the others'
    bool byPlayer;       // who has brought the window back before
    void (*happen)(Simulation& world, std::uint32_t choice);
};
[[nodiscard]] const std::vector<EventKind>& EventKinds();  // Events.cpp

// What is wrong although it must hold whenever the program waits for the next event; empty when all is well.
[[nodiscard]] std::string Broken(const Simulation& world);  // Invariants.cpp

// The program with its folder, its store and its player, all on virtual time. It is started again, with the
// same folder and store, whenever it has ended.
class Simulation : public StoreFile, public GameWindow {
public:
    // `seed`: of the game's own chance.
    explicit Simulation(unsigned seed);
    ~Simulation();

    // Lets `events` happen, up to the first that breaks something; some of those that come in a
    // demonstration's time inside it. May be called again when nothing broke.
    void Play(const Script& events);

    std::string broken;   // what broke, and after which event; empty while nothing has
    int gamesBefore = 0;  // played in windows that are gone

    // --- for the events ---
    void Mouse(QEvent::Type type, QPoint at, Qt::MouseButton button);
    void Click(QPoint at, Qt::MouseButton button = Qt::LeftButton);
    void Click(const QWidget& control) { Click(CentreOf(control)); }
    void Key(int key, int repeats = 0);
    void Remove(const QString& skin) {
        if (QFile::remove(Art(skin))) before.files.erase(skin);
    }
    [[nodiscard]] QPoint CentreOf(const QWidget& control) const {
        return control.mapTo(form.get(), control.rect().center());
    }

    // --- for the invariants ---
    [[nodiscard]] bool IsOpen() const { return form->isVisible() && !ended; }
    // The player's own game is on the board: nothing that a demonstration has dealt.
    [[nodiscard]] bool PlayersGame() const {
        return form->play != frmGame::Play::Off && form->picMat[0].Enabled() && !inDemo;
    }
    [[nodiscard]] bool BoardShown() const { return form->fraScreen[0].Visible(); }

    QTemporaryDir outside;  // where the player keeps pictures
    StringStore failingStore{QStringLiteral("/dev/null/store.txt")};
    QWidget otherWindow;
    bool inDemo = false, passing = false;  // the event was nothing but time
    int confirmed = 0;                     // questions answered with yes since the latest event
    // A demonstration was stopped in this game: it finishes its step, and may have dealt a card of its script
    // by that, moved the active card, or left a card beside another screen.
    bool stepLeftOver = false;

    // What was so after the event before.
    struct Before {
        int games = 0, turns = 0;
        std::int32_t score = 0;
        frmGame::Play play = frmGame::Play::Off;
        bool timeCounts = false;  // the lock timers ran
        std::chrono::milliseconds now{0};
        int interval = 0;
        std::set<QString> files;
        QByteArray store;
        std::vector<HighScore> table;
        int unlitMenu = -1;  // the button whose caption the high scores have put out
    } before;

private:
    void Restart();
    void Attend();  // the player turns to the window
    void Happen(const Event& event);
    void Inside();  // while a demonstration lets events run
    void Check(const Event& event);
    void Remember();

    const Script* events_ = nullptr;
    std::size_t next_ = 0;
    unsigned calls_ = 0;  // of a demonstration, since the event before
    Qt::MouseButtons held_;
};

// The table as another process sees it.
[[nodiscard]] std::vector<HighScore> StoredTable(const Simulation& world);
