#include "tests/simulation/Simulation.h"

#include <QApplication>
#include <QTest>

#include "screen/Look.h"

using namespace std::chrono_literals;

namespace {

constexpr unsigned kMostCalls = 16;  // a demonstration's, that an event lets go by before it happens

// Real clicks of one simulated world never make a double click with those of the next.
std::chrono::milliseconds timestamp{0};

}  // namespace

Simulation::Simulation(unsigned seed) {
    timestamp += 10s;
    random.rest.seed(seed);
    WriteSkin(Art("night.png"));
    time.onProcessEvents = [this] { Inside(); };
    dialogs.meanwhile = [this] {  // a player who takes three seconds, and says yes to every other question
        time.Pass(3s);
        dialogs.answer = !dialogs.answer;
        confirmed += dialogs.answer;
    };
    otherWindow.setGeometry(500, 500, 50, 50);
    otherWindow.show();
    Restart();
    Mouse(QEvent::MouseMove, {1, 1}, Qt::NoButton);
    Remember();
}

Simulation::~Simulation() {
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton})
        if (held_ & button) Mouse(QEvent::MouseButtonRelease, {1, 1}, button);
}

void Simulation::Restart() {
    gamesBefore += random.games;
    random.games = random.turns = 0;
    Open();
    form->show();
    Attend();
}

void Simulation::Play(const Script& events) {
    events_ = &events;
    next_ = 0;
    while (next_ < events.size() && broken.empty()) {
        Happen(events[next_++]);
        if (!broken.empty() || IsOpen()) continue;
        Restart();
        Check(events[next_ - 1]);
    }
    events_ = nullptr;
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
    confirmed = 0;
    dialogs.told.clear();
    const EventKind& kind = EventKinds()[event.kind];
    if (kind.byPlayer) Attend();
    kind.happen(*this, event.choice);
    QCoreApplication::processEvents();
    if (broken.empty() && IsOpen()) Check(event);
    passing = false;
}

void Simulation::Check(const Event& event) {
    if (!inDemo && random.games != before.games) stepLeftOver = false;
    broken = Broken(*this);
    if (!broken.empty()) broken += std::string(", after ") + EventKinds()[event.kind].name;
    Remember();
}

void Simulation::Remember() {
    const int unlit = form->fraScreen[3].Visible() ? form->CurrentMenu : before.unlitMenu;
    const bool anyLit = std::ranges::any_of(
        form->lblCaption, [](const Label& label) { return label.ForeColor() == Look::kLitCaption; });
    before.games = random.games, before.turns = random.turns, before.score = Model().Score();
    before.play = form->play, before.now = time.Now();
    before.timeCounts = form->Timer1.Enabled(), before.interval = form->Timer1.Interval();
    before.unlitMenu = anyLit && !form->fraScreen[3].Visible() ? -1 : unlit;
    if (const QByteArray bytes = Bytes(); bytes != before.store)
        before.store = bytes, before.table = StoredTable(*this);
    before.files.clear();
    for (const QString& file : QDir(Art()).entryList(QDir::Files | QDir::Hidden)) before.files.insert(file);
}

std::vector<HighScore> StoredTable(const Simulation& world) {
    std::vector<HighScore> table;
    for (int row = 0; row < kHighScores; ++row) {
        const auto read = [&](const char* column) {
            const QString path = QStringLiteral("Software\\Tesselor\\") + column;
            return world.hive.String(path, QString::number(row)).value_or(QString());
        };
        table.push_back({read("Name"), read("Date"), read("Score")});
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
