// Measures the game beside a bare window of the same toolkit and beside other games, those that are
// installed, all taking turns on one display: start to first paint, memory, and what they do when nothing
// happens. Then the game and the bare window alone: key and mouse to changed pixels, and a game at master
// level.
//
// usage: dbus-run-session measure [STARTS] [MOVES] [IDLE-SECONDS] [PROGRAM...]
// A PROGRAM, such as an older build of the game, takes its turns with the others.

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QThread>
#include <algorithm>
#include <cstdio>
#include <memory>

#include "tools/display/RealWindow.h"
#include "tools/display/Spots.h"
#include "tools/display/VirtualDisplay.h"

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

struct Program {
    const char* name;
    const char* path;
    QStringList arguments = {};
};
const Program kGame{"tesselor", TESSELOR_BUILD "/tesselor"};
const Program kBare{"bare window", TESSELOR_BUILD "/tools/measure/bare_window"};
const Program kTicking{"bare window that ticks", kBare.path, {"--tick"}};
const Program kOthers[] = {{"sgt-mines", "/usr/games/sgt-mines"},
                           {"sgt-sixteen", "/usr/games/sgt-sixteen"},
                           {"kpat", "/usr/games/kpat"},
                           {"aisleriot", "/usr/games/sol"},
                           {"gnome-mahjongg", "/usr/games/gnome-mahjongg"}};

double MillisecondsSince(Clock::time_point start) {
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

double Percentile(std::vector<double> values, double share) {
    std::sort(values.begin(), values.end());
    return values[std::min(values.size() - 1, static_cast<std::size_t>(share * double(values.size())))];
}

QByteArray ReadProc(const QString& path) {
    QFile proc("/proc/" + path);
    return proc.open(QIODevice::ReadOnly) ? proc.readAll() : QByteArray();
}

double Field(const QByteArray& text, const char* name) {
    const QRegularExpression line(QStringLiteral("^%1:\\s*(\\d+)").arg(QLatin1String(name)),
                                  QRegularExpression::MultilineOption);
    return line.match(QString::fromLatin1(text)).captured(1).toDouble();
}

// Whether a window can be seen: the screen behind is black. Every tenth line is looked at.
bool IsSomethingPainted(const RealWindow& screen) {
    int lit = 0;
    for (int y = 0; y < screen.OnScreen().height(); y += 10) {
        const QImage line = screen.Look({0, y, screen.OnScreen().width(), 1});
        for (int x = 0; x < line.width(); ++x) lit += qGray(line.pixel(x, 0)) > 20 ? 1 : 0;
    }
    return lit > 3000;
}

// A program running alone on the display; ends with this.
class Running {
public:
    Running(const Program& program, const VirtualDisplay& display) : screen_(display.Name(), {}) {
        process_.setProcessEnvironment(display.Environment());
        process_.setStandardErrorFile(QProcess::nullDevice());
        process_.setStandardOutputFile(QProcess::nullDevice());
        const auto start = Clock::now();
        process_.start(QString::fromUtf8(program.path), program.arguments);
        screen_.Await([&] { return IsSomethingPainted(screen_); });
        firstPaint_ = MillisecondsSince(start);
    }
    ~Running() {
        process_.kill();
        process_.waitForFinished();
        screen_.Await([&] { return !IsSomethingPainted(screen_); }, 3s);
    }

    [[nodiscard]] QString Process() const { return QString::number(process_.processId()); }
    [[nodiscard]] double FirstPaint() const { return firstPaint_; }
    [[nodiscard]] double ResidentMegabytes() const {
        return Field(ReadProc(Process() + "/status"), "VmRSS") / 1024;
    }
    [[nodiscard]] double PrivateMegabytes() const {
        const QByteArray rollup = ReadProc(Process() + "/smaps_rollup");
        return (Field(rollup, "Private_Clean") + Field(rollup, "Private_Dirty")) / 1024;
    }
    // Of all its threads.
    [[nodiscard]] double Switches() const {
        return OfThreads([](const QString& thread) {
            const QByteArray status = ReadProc(thread + "/status");
            return Field(status, "voluntary_ctxt_switches") + Field(status, "nonvoluntary_ctxt_switches");
        });
    }
    [[nodiscard]] double ProcessorMilliseconds() const {
        return OfThreads([](const QString& thread) {
            return ReadProc(thread + "/schedstat").split(' ').value(0).toDouble() / 1e6;
        });
    }

private:
    template <class Figure>
    double OfThreads(Figure figure) const {
        double sum = 0;
        const QString threads = Process() + "/task";
        for (const QString& thread : QDir("/proc/" + threads).entryList(QDir::Dirs | QDir::NoDotAndDotDot))
            sum += figure(threads + '/' + thread);
        return sum;
    }

    RealWindow screen_;
    QProcess process_;
    double firstPaint_ = 0;
};

// Milliseconds from what `act` does to the first changed pixel of the window's `area`.
template <class Act>
double ToPixels(const RealWindow& window, const QRect& area, Act act) {
    QThread::msleep(20);  // lets what came before settle
    const QImage before = window.Look(area);
    const auto start = Clock::now();
    act();
    window.Await([&] { return window.Look(area) != before; });
    return MillisecondsSince(start);
}

void PrintIdle(const char* what, const Running& program, int seconds) {
    QThread::msleep(1000);
    const double cpu = program.ProcessorMilliseconds(), switches = program.Switches();
    QThread::sleep(static_cast<unsigned long>(seconds));
    // A thread that ends takes its share away.
    std::printf("%-34s %8.2f %% of a core, %6.1f switches a second\n", what,
                std::max(0.0, program.ProcessorMilliseconds() - cpu) / seconds / 10,
                std::max(0.0, program.Switches() - switches) / seconds);
}

void MeasureStarts(const VirtualDisplay& display, const std::vector<Program>& programs, int starts) {
    std::vector<std::vector<double>> times(programs.size());
    for (int i = 0; i <= starts; ++i)
        for (std::size_t k = 0; k < programs.size(); ++k) {
            const double time = Running(programs[k], display).FirstPaint();
            if (i > 0) times[k].push_back(time);  // the first one reads from the disk
        }
    std::puts("\nstart to first paint               fastest   median   ratio of the medians");
    for (std::size_t k = 0; k < programs.size(); ++k)
        std::printf("%-34s %7.1f %8.1f ms %6.2f\n", programs[k].name, Percentile(times[k], 0),
                    Percentile(times[k], 0.5), Percentile(times[k], 0.5) / Percentile(times[0], 0.5));
}

void MeasureRest(const VirtualDisplay& display, const std::vector<Program>& programs, int seconds) {
    std::puts("\nmemory, two seconds after start   resident  private   ratio of the resident");
    double bare = 0;
    for (const Program& program : programs) {
        const Running running(program, display);
        QThread::sleep(2);
        const double resident = running.ResidentMegabytes();
        if (bare == 0) bare = resident;
        std::printf("%-34s %7.1f %8.1f MB %6.2f\n", program.name, resident, running.PrivateMegabytes(),
                    resident / bare);
        PrintIdle("  and nothing happens", running, seconds);
    }
}

struct Moves {
    std::vector<double> keys, mouse;
};

Moves MeasureMoves(const VirtualDisplay& display, const char* title, int moves) {
    const RealWindow window(display.Name(), QString::fromUtf8(title));
    const QRect column(51, 193, 64, 130);
    window.Focus();
    window.MoveMouse(Spot::kBackground);
    QThread::msleep(500);
    Moves times;
    for (int i = 0; i < moves; ++i)
        times.keys.push_back(ToPixels(window, column, [&] { window.Key(i % 2 == 0 ? "Up" : "Down"); }));
    for (int i = 0; i < moves; ++i)
        times.mouse.push_back(
            ToPixels(window, column, [&] { window.MoveMouse(Spot::Cell(i % 2 == 0 ? 8 : 12).center()); }));
    return times;
}

void PrintMoves(const char* what, const std::vector<double>& game, const std::vector<double>& bare) {
    for (const int percent : {50, 99}) {
        const double share = percent / 100.0;
        std::printf("%-30s p%d %7.2f %8.2f ms %6.2f\n", what, percent, Percentile(game, share),
                    Percentile(bare, share), Percentile(game, share) / Percentile(bare, share));
    }
}

void Play(const VirtualDisplay& display, bool master) {
    const RealWindow window(display.Name(), "Tesselor");
    const auto click = [&window](const QRect& control) {
        window.Click(control.center());
        QThread::msleep(500);
    };
    if (master) click(Spot::kMenu), click(Spot::Level(4));
    click(Spot::kPlay);
    window.Focus();
    window.Key("space");
    QThread::msleep(500);
}

void MeasureGame(const VirtualDisplay& display, int moves, int seconds) {
    Moves bare;
    {
        const Running running(kBare, display);
        bare = MeasureMoves(display, "Bare", moves);
    }
    std::puts("\nto changed pixels                       game     bare   ratio");
    const Running running(kGame, display);
    Play(display, false);
    const Moves game = MeasureMoves(display, "Tesselor", moves);
    PrintMoves("from a key", game.keys, bare.keys);
    PrintMoves("from a move of the mouse", game.mouse, bare.mouse);
    std::puts("\nin a game");
    std::printf("%-34s %7.1f MB\n", "resident memory after the moves", running.ResidentMegabytes());
    PrintIdle("practice", running, seconds);
}

void MeasureTimers(const VirtualDisplay& display, int seconds) {
    {
        const Running running(kGame, display);
        Play(display, true);
        PrintIdle("master level", running, seconds);
    }
    PrintIdle(kTicking.name, Running(kTicking, display), seconds);
}

int Argument(int argc, char* argv[], int index, int otherwise) {
    return index < argc ? std::atoi(argv[index]) : otherwise;
}

}  // namespace

int main(int argc, char* argv[]) {
    std::setvbuf(stdout, nullptr, _IOLBF, 0);  // each figure is seen as soon as it is there
    const QCoreApplication application(argc, argv);
    const int starts = Argument(argc, argv, 1, 20), moves = Argument(argc, argv, 2, 500),
              seconds = Argument(argc, argv, 3, 30);
    const VirtualDisplay display;
    std::vector<Program> programs{kBare, kGame};
    for (const Program& other : kOthers)
        if (QFileInfo(QString::fromUtf8(other.path)).isExecutable()) programs.push_back(other);
    for (int i = 4; i < argc; ++i) programs.push_back({argv[i], argv[i]});
    MeasureStarts(display, programs, starts);
    MeasureRest(display, programs, seconds);
    MeasureGame(display, moves, seconds);
    MeasureTimers(display, seconds);
}
