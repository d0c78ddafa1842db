#pragma once

#include <QTemporaryDir>
#include <random>
#include <set>
#include <vector>

#include "screen/HighScoreTable.h"
#include "tests/support/GameWindow.h"
#include "tests/support/StoreFile.h"

class Simulation;

// One thing that happens: a row of the table of events, and a random number for its details.
struct Event {
    std::size_t kind = 0;
    std::uint32_t choice = 0;
};
using Script = std::vector<Event>;

// A row of the table.
struct EventKind {
    const char* name;
    unsigned weight;  // how often it happens, beside the others'
    bool byPlayer;    // who has brought the window back before
    void (*happen)(Simulation& world, std::uint32_t choice);
};
[[nodiscard]] const std::vector<EventKind>& EventKinds();  // Events.cpp

// Something that is true whenever the program waits for the next event. Returns what is wrong, or nothing.
struct Invariant {
    const char* name;
    std::string (*broken)(const Simulation& world);
};
[[nodiscard]] const std::vector<Invariant>& Invariants();  // Invariants.cpp

// `count` events; the same for the same seed on every machine.
[[nodiscard]] Script MakeScript(unsigned seed, std::size_t count);

// The game's chance. Knows a game's beginning by its first card, the only kind drawn without re-seeding, and
// counts the turns by the cards drawn after it.
class Dealer final : public RandomSource {
public:
    explicit Dealer(unsigned seed) : chance_(seed) {}
    void Reseed() override { reseeded_ = true; }
    std::int16_t Below(std::int16_t count) override {
        const bool begins = count == kCardKinds && !reseeded_;
        turns = begins ? 0 : turns + (count == kCardKinds ? 1 : 0);
        games += begins ? 1 : 0;
        if (count == kCardKinds) reseeded_ = false;
        return static_cast<std::int16_t>(chance_() % static_cast<unsigned>(count));
    }

    int games = 0, turns = 0;

private:
    std::mt19937 chance_;
    bool reseeded_ = false;
};

// A player who takes three seconds over each message box and says yes to every other question.
class SlowAnswers final : public Dialogs {
public:
    explicit SlowAnswers(VirtualTime& time) : time_(time) {}
    void Tell(QWidget*, const QString&) override { time_.Pass(std::chrono::seconds(3)); }
    bool Ask(QWidget* owner, const QString& question) override {
        Tell(owner, question);
        const bool yes = ++asked_ % 2 == 0;
        if (yes) ++confirmed;
        return yes;
    }

    int confirmed = 0;  // since the latest event

private:
    VirtualTime& time_;
    int asked_ = 0;
};

// The program with its folder, its store and its player, all on virtual time. It is started again, with the
// same folder and store, whenever it has ended.
class Simulation {
public:
    // `seed`: of the game's own chance.
    explicit Simulation(unsigned seed);
    ~Simulation();

    // Lets all of `events` happen, or those up to the first that breaks an invariant; the later ones of a
    // demonstration's time inside it. May be called again when nothing broke.
    void Play(const Script& events);

    // What broke, and after how many events; empty while nothing has.
    std::string broken;
    std::size_t happened = 0;
    std::uint64_t trace = 0;  // a hash over what was to be seen after each event
    int gamesBefore = 0;      // played in windows that are gone

    // --- for the events ---
    void Mouse(QEvent::Type type, QPoint at, Qt::MouseButton button);
    void Click(QPoint at, Qt::MouseButton button = Qt::LeftButton);
    void Key(int key, int repeats = 0);
    void Remove(const QString& skin) {
        if (QFile::remove(Art(skin))) before.files.erase(skin);
    }
    [[nodiscard]] QPoint CentreOf(const QWidget& control) const {
        return control.mapTo(form.get(), control.rect().center());
    }
    [[nodiscard]] QString Art(const QString& file = {}) const { return folder.filePath("Art/" + file); }

    // --- for the invariants ---
    [[nodiscard]] clsCard& Model() const { return form->Game(); }
    [[nodiscard]] bool IsOpen() const { return form->isVisible() && !ended; }
    // The player's own game is on the board: nothing that a demonstration has dealt.
    [[nodiscard]] bool PlayersGame() const {
        return form->play != frmGame::Play::Off && form->picMat[0].Enabled() && !inDemo;
    }
    [[nodiscard]] std::vector<HighScore> StoredTable() const;
    [[nodiscard]] bool BoardShown() const { return form->fraScreen[0].Visible(); }

    VirtualTime time;
    Dealer dealer;
    SlowAnswers dialogs{time};
    RecordedSounds sounds;
    SoundFiles soundFiles{sounds};
    QTemporaryDir folder, outside;  // the program's, and where the player keeps pictures
    StoreFile store;
    RegistryHive failingStore{QStringLiteral("/dev/null/store.txt")};
    QWidget otherWindow;
    bool ended = false, inDemo = false;
    std::unique_ptr<frmGame> form;

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
    bool passing = false;  // the event was nothing but time
    // A demonstration was stopped in this game: it finishes its step, and may have dealt a card of its script
    // by that, moved the active card, or left a card beside another screen.
    bool stepLeftOver = false;

private:
    void Open();
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
