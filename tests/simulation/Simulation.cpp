#include "tests/simulation/Simulation.h"

using namespace std::chrono_literals;

Simulation::Simulation(unsigned seed) {
    QTestPrivate::qtestMouseButtons = {};  // those of the world before
    random.rest.seed(seed);
    WriteFile(Art("night.png"), skin);
    time.onProcessEvents = [this] { Inside(); };
    dialogs.meanwhile = [this] {  // a player who takes three seconds, and says yes to every other question
        time.Pass(3s);
        dialogs.answer = !dialogs.answer;
        mayGo += dialogs.answer;
    };
    otherWindow.show();
    before.store = Bytes(), before.table = StoredTable();
    Happen({{"the start", [](Simulation&, std::uint32_t) {}}, 0});
}

void Simulation::Play(const Script& events) {
    events_ = &events;
    for (next_ = 0; next_ < events.size() && broken.empty();) Happen(events[next_++]);
    events_ = nullptr;
}

void Simulation::Inside() {
    if (!events_ || next_ == events_->size() || !broken.empty() || !IsOpen()) return;
    const Event& event = (*events_)[next_];
    if (calls_++ < event.second / 256 % 16) return;  // each event lets some calls go by
    calls_ = 0;
    ++next_;
    inDemo = stepLeftOver = true;
    Happen(event);
    inDemo = false;
}

void Simulation::Happen(const Event& event) {
    mayGo = 0;
    dialogs.told.clear();
    event.first.happen(*this, event.second);
    QCoreApplication::processEvents();
    if (!broken.empty() || (inDemo && !IsOpen())) return;  // a demonstration unwinds before a restart
    if (!IsOpen()) {
        gamesBefore = random.games, before.games = -1;
        Open();
        form->show();
        Attend();
    }
    if (!inDemo && random.games != before.games) stepLeftOver = false;
    onlyTime = event.first.name == std::string_view("time");
    broken = Broken(*this);
    if (!broken.empty()) broken += std::string(", after ") + event.first.name;
    Remember();
}

void Simulation::Remember() {
    const std::chrono::milliseconds interval(form->Timer1.Interval());
    const bool limited = form->Timer1.Enabled() && interval > 0ms;
    before.games = random.games, before.turns = random.turns;
    before.score = Model().Score(), before.play = form->play;
    before.limit = limited ? time.Now() + interval : std::chrono::milliseconds::max();
    if (const QByteArray bytes = Bytes(); bytes != before.store)
        before.store = bytes, before.table = StoredTable();
    before.files = QDir(Art()).entryList(QDir::Files | QDir::Hidden);
}

QList<QStringList> StoredTable() {
    QList<QStringList> table;
    for (int row = 0; row < kHighScores; ++row) {
        const auto [name, date, score] = StoredHighScore(row);
        table.append({score, name, date});
    }
    return table;
}

// --- for the events ---

void Simulation::Attend() {
    if (form->isMinimized()) form->showNormal();
    if (!QGuiApplication::focusWindow() || otherWindow.isActiveWindow()) form->activateWindow();
    QCoreApplication::processEvents();
}

// To the window, which finds the control at `at` by itself; as the window system sends it.
void Simulation::Mouse(QTest::MouseAction action, QPoint at, Qt::MouseButton button) {
    if (!IsOpen()) return;
    Attend();
    if (action != QTest::MouseMove && action != QTest::MouseRelease && !form->isActiveWindow())
        form->activateWindow();
    QTest::mouseEvent(action, form->windowHandle(), button, {}, at);
}

// To the control that has the keyboard, wherever that is.
void Simulation::Key(int key, int repeats) {
    const QString text = key <= Qt::Key_Z ? QString(QChar(key).toLower()) : QString();
    Attend();
    for (int press = 0; press <= repeats + 1; ++press)
        if (QWindow* window = QGuiApplication::focusWindow(); window && IsOpen())
            QTest::simulateEvent(window, press <= repeats, key, {}, text, press > 0 && press <= repeats);
}
