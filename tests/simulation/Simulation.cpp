#include "tests/simulation/Simulation.h"

#include <QApplication>
#include <QTest>

#include "screen/Look.h"
#include "shell/mdlRegistry.h"

using namespace std::chrono_literals;

namespace {

constexpr unsigned kMostCalls = 16;  // a demonstration's, that an event lets go by before it happens

// Real clicks of one simulated world never make a double click with those of the next.
std::chrono::milliseconds timestamp{0};

void Mix(std::uint64_t& hash, std::uint64_t value) {
    hash = (hash ^ value) * 0x100000001B3;
}

}  // namespace

Script MakeScript(unsigned seed, std::size_t count) {
    std::vector<std::size_t> lots;  // each kind as often as it weighs
    for (std::size_t kind = 0; kind < EventKinds().size(); ++kind)
        lots.insert(lots.end(), EventKinds()[kind].weight, kind);
    std::mt19937 chance(seed);
    Script script(count);
    for (Event& event : script) {
        event.kind = lots[chance() % lots.size()];
        event.choice = static_cast<std::uint32_t>(chance());
    }
    return script;
}

Simulation::Simulation(unsigned seed) : dealer(seed) {
    timestamp += 10s;
    QDir(folder.path()).mkdir(QStringLiteral("Art"));
    for (const char* skin : {"sea.png", "night.png"}) WriteSkin(Art(skin));
    time.onProcessEvents = [this] { Inside(); };
    otherWindow.setGeometry(500, 500, 50, 50);
    otherWindow.show();
    Open();
    Mouse(QEvent::MouseMove, {1, 1}, Qt::NoButton);
    Remember();
}

Simulation::~Simulation() {
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton})
        if (held_ & button) Mouse(QEvent::MouseButtonRelease, {1, 1}, button);
}

void Simulation::Open() {
    if (form) gamesBefore += dealer.games;
    form.reset();
    ended = false;
    dealer.games = dealer.turns = 0;
    form = std::make_unique<frmGame>(World{time, dealer, dialogs, soundFiles, ProgramFolder(folder.path()),
                                           [this] { ended = form->StopDemo = true; }, [](const QString&) {}});
    form->show();
    Attend();
}

void Simulation::Play(const Script& events) {
    events_ = &events;
    next_ = 0;
    while (next_ < events.size() && broken.empty()) {
        Happen(events[next_++]);
        if (!broken.empty() || IsOpen()) continue;
        Open();
        Check(events[next_ - 1]);
    }
    happened = next_;
}

void Simulation::Inside() {
    if (!events_ || next_ == events_->size() || !broken.empty() || !IsOpen()) return;
    const Event& event = (*events_)[next_];
    if (calls_++ < event.choice / 256 % kMostCalls) return;
    calls_ = 0;
    ++next_;
    inDemo = stepLeftOver = true;
    Happen(event);
    inDemo = false;
}

void Simulation::Happen(const Event& event) {
    dialogs.confirmed = 0;
    const EventKind& kind = EventKinds()[event.kind];
    if (kind.byPlayer) Attend();
    kind.happen(*this, event.choice);
    QCoreApplication::processEvents();
    if (broken.empty() && IsOpen()) Check(event);
    passing = false;
}

void Simulation::Check(const Event& event) {
    if (!inDemo && dealer.games != before.games) stepLeftOver = false;
    for (const Invariant& invariant : Invariants())
        if (const std::string what = invariant.broken(*this); !what.empty()) {
            broken = std::string(invariant.name) + ": " + what;
            return;
        }
    Remember();
    const QWidget* focus = QApplication::focusWidget();
    for (const std::uint64_t seen :
         {std::uint64_t(event.kind), std::uint64_t(time.Now().count()), std::uint64_t(form->play),
          std::uint64_t(Model().Score()), std::uint64_t(Model().PosCurrentCard()),
          std::uint64_t(Model().CurrentCard()), std::uint64_t(Model().CardsInMatrix()),
          std::uint64_t(form->SkinCount), std::uint64_t(form->CurrentMenu),
          std::uint64_t(before.files.size()), std::uint64_t(focus ? qHash(focus->objectName()) : 0),
          std::uint64_t(qHash(before.store))})
        Mix(trace, seen);
}

void Simulation::Remember() {
    before.games = dealer.games;
    before.turns = dealer.turns;
    before.score = Model().Score();
    before.play = form->play;
    before.timeCounts = form->Timer1.Enabled();
    before.interval = form->Timer1.Interval();
    before.now = time.Now();
    before.files.clear();
    for (const QString& file : QDir(Art()).entryList(QDir::Files | QDir::Hidden)) before.files.insert(file);
    for (std::size_t i = 0; i < form->lblCaption.size(); ++i)
        if (form->lblCaption[i].ForeColor() == Look::kLitCaption) before.unlitMenu = -1;
    if (form->fraScreen[3].Visible()) before.unlitMenu = form->CurrentMenu;
    if (QByteArray bytes = store.Bytes(); bytes != before.store) {
        before.store = bytes;
        before.table = StoredTable();
    }
}

std::vector<HighScore> Simulation::StoredTable() const {
    std::vector<HighScore> table(kHighScores);
    for (std::size_t row = 0; row < table.size(); ++row) {
        const auto read = [&](const char* column) {
            const QString path = QStringLiteral("Software\\Tesselor\\") + column;
            return store.hive.String(path, QString::number(row)).value_or(QString());
        };
        table[row] = {read("Name"), read("Date"), read("Score")};
    }
    return table;
}

// --- for the events ---

void Simulation::Attend() {
    if (form->isMinimized()) form->showNormal();
    if (!QGuiApplication::focusWindow()) form->activateWindow();
    if (otherWindow.isActiveWindow()) form->activateWindow();
    QCoreApplication::processEvents();
}

// To the window, which finds the control at `at` by itself; as the window system sends it.
void Simulation::Mouse(QEvent::Type type, QPoint at, Qt::MouseButton button) {
    if (type == QEvent::MouseButtonPress && !form->isActiveWindow()) form->activateWindow();
    held_.setFlag(button, type == QEvent::MouseButtonPress);
    timestamp += 10ms;
    qt_handleMouseEvent(form->windowHandle(), at, form->mapToGlobal(at), held_, button, type, {},
                        static_cast<int>(timestamp.count()));
    QCoreApplication::processEvents();
}

void Simulation::Click(QPoint at, Qt::MouseButton button) {
    timestamp += 1s;
    if (!(held_ & button)) Mouse(QEvent::MouseButtonPress, at, button);
    if (IsOpen()) Mouse(QEvent::MouseButtonRelease, at, button);
}

// To the control that has the keyboard, wherever that is.
void Simulation::Key(int key, int repeats) {
    const QString text = key <= Qt::Key_Z ? QString(QChar(key).toLower()) : QString();
    QWindow* window = QGuiApplication::focusWindow();
    for (int press = 0; window && press <= repeats && IsOpen(); ++press) {
        qt_handleKeyEvent(window, QEvent::KeyPress, key, {}, text, press > 0);
        QCoreApplication::processEvents();
    }
    if (window && IsOpen()) qt_handleKeyEvent(window, QEvent::KeyRelease, key, {}, text);
}
