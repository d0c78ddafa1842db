// Measures the game beside a bare window of the same toolkit, in one run on one display, the two taking
// turns: start to first paint, key to changed pixels, memory, and what they do when nothing happens.
//
// usage: measure [STARTS] [KEYS] [IDLE-SECONDS]

#include <unistd.h>
#include <QCoreApplication>
#include <QFile>
#include <QRegularExpression>
#include <QThread>
#include <algorithm>
#include <cstdio>
#include <ctime>
#include <memory>

#include "tools/display/RealWindow.h"
#include "tools/display/VirtualDisplay.h"

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

struct Program {
    const char* path;
    const char* title;
};
constexpr Program kGame{TESSELOR_BUILD "/tesselor", "Tesselor"};
constexpr Program kBare{TESSELOR_BUILD "/tools/measure/bare_window", "Bare"};

double MillisecondsSince(Clock::time_point start) {
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

double Percentile(std::vector<double> values, double share) {
    std::sort(values.begin(), values.end());
    return values[std::min(values.size() - 1, static_cast<std::size_t>(share * double(values.size())))];
}

QByteArray ReadProc(qint64 process, const char* file) {
    QFile proc(QStringLiteral("/proc/%1/%2").arg(process).arg(QLatin1String(file)));
    return proc.open(QIODevice::ReadOnly) ? proc.readAll() : QByteArray();
}

qint64 Field(const QByteArray& text, const char* name) {
    const QRegularExpression line(QStringLiteral("^%1:\\s*(\\d+)").arg(QLatin1String(name)),
                                  QRegularExpression::MultilineOption);
    return line.match(QString::fromLatin1(text)).captured(1).toLongLong();
}

// A program running in its window; ends with this.
class Running {
public:
    Running(const Program& program, const VirtualDisplay& display) {
        process_.setProcessEnvironment(display.Environment());
        process_.setStandardErrorFile(QProcess::nullDevice());
        const auto start = Clock::now();
        process_.start(QString::fromUtf8(program.path), {});
        window_ = std::make_unique<RealWindow>(display.Name(), QString::fromUtf8(program.title));
        // Both windows are blue at their left edge once they are painted, and the screen behind is black.
        window_->Await([&] { return qBlue(window_->Look({5, 200, 1, 1}).pixel(0, 0)) > 20; });
        firstPaint_ = MillisecondsSince(start);
    }
    ~Running() { process_.kill(), process_.waitForFinished(); }

    [[nodiscard]] double FirstPaint() const { return firstPaint_; }
    [[nodiscard]] RealWindow& Window() const { return *window_; }
    [[nodiscard]] qint64 Resident() const { return Field(ReadProc(process_.processId(), "status"), "VmRSS"); }
    [[nodiscard]] qint64 Private() const {
        const QByteArray rollup = ReadProc(process_.processId(), "smaps_rollup");
        return Field(rollup, "Private_Clean") + Field(rollup, "Private_Dirty");
    }
    [[nodiscard]] qint64 Switches() const {
        const QByteArray status = ReadProc(process_.processId(), "status");
        return Field(status, "voluntary_ctxt_switches") + Field(status, "nonvoluntary_ctxt_switches");
    }
    [[nodiscard]] double ProcessorMilliseconds() const {
        const QList<QByteArray> stat = ReadProc(process_.processId(), "stat").split(')').last().split(' ');
        return double(stat[12].toLongLong() + stat[13].toLongLong()) * 1000 / double(sysconf(_SC_CLK_TCK));
    }
    // Milliseconds from a key press to the first changed pixel of `area`.
    double KeyToPixels(const char* key, const QRect& area) const {
        QThread::msleep(20);  // lets what the focus brings about settle
        const QImage before = window_->Look(area);
        const auto start = Clock::now();
        window_->Key(key);
        window_->Await([&] { return window_->Look(area) != before; });
        return MillisecondsSince(start);
    }

private:
    QProcess process_;
    std::unique_ptr<RealWindow> window_;
    double firstPaint_ = 0;
};

void PrintPair(const char* what, const char* unit, double game, double bare) {
    std::printf("%-34s %9.2f %9.2f %-3s  ratio %.2f\n", what, game, bare, unit, bare > 0 ? game / bare : 0.0);
}

void MeasureStarts(const VirtualDisplay& display, int starts) {
    std::vector<double> game, bare;
    for (int i = 0; i < starts; ++i) {
        game.push_back(Running(kGame, display).FirstPaint());
        bare.push_back(Running(kBare, display).FirstPaint());
    }
    PrintPair("start to first paint, median", "ms", Percentile(game, 0.5), Percentile(bare, 0.5));
    PrintPair("start to first paint, fastest", "ms", Percentile(game, 0), Percentile(bare, 0));
}

void StartGame(const Running& game) {
    const QImage before = game.Window().Look();
    game.Window().Click({366, 262});
    game.Window().Await([&] { return game.Window().Look() != before; });
    QThread::msleep(300);
}

void MeasureKeys(const Running& game, const Running& bare, int keys) {
    const QRect column(51, 193, 64, 130);
    std::vector<double> gameTimes, bareTimes;
    for (int i = 0; i < keys; ++i) {
        const char* key = i % 2 == 0 ? "Up" : "Down";
        game.Window().Focus();
        gameTimes.push_back(game.KeyToPixels(key, column));
        bare.Window().Focus();
        bareTimes.push_back(bare.KeyToPixels(key, column));
    }
    PrintPair("key to pixels, p50", "ms", Percentile(gameTimes, 0.5), Percentile(bareTimes, 0.5));
    PrintPair("key to pixels, p99", "ms", Percentile(gameTimes, 0.99), Percentile(bareTimes, 0.99));
}

void MeasureIdle(const char* what, const Running& program, int seconds) {
    QThread::msleep(1000);
    const double cpu = program.ProcessorMilliseconds();
    const qint64 switches = program.Switches();
    QThread::sleep(static_cast<unsigned long>(seconds));
    std::printf("%-34s %9.0f ms of processor, %lld switches in %d s\n", what,
                program.ProcessorMilliseconds() - cpu, static_cast<long long>(program.Switches() - switches),
                seconds);
}

int Argument(int argc, char* argv[], int index, int otherwise) {
    return index < argc ? std::atoi(argv[index]) : otherwise;
}

}  // namespace

int main(int argc, char* argv[]) {
    std::setvbuf(stdout, nullptr, _IOLBF, 0);  // each figure is seen as soon as it is there
    const QCoreApplication application(argc, argv);
    const VirtualDisplay display;
    const int seconds = Argument(argc, argv, 3, 10);
    std::printf("%-34s %9s %9s\n", "", "game", "bare");
    MeasureStarts(display, Argument(argc, argv, 1, 20));
    {
        const Running game(kGame, display), bare(kBare, display);
        game.Window().MoveTo({50, 50});
        bare.Window().MoveTo({700, 50});
        QThread::msleep(1000);
        PrintPair("resident memory, help screen", "MB", double(game.Resident()) / 1024,
                  double(bare.Resident()) / 1024);
        PrintPair("private memory, help screen", "MB", double(game.Private()) / 1024,
                  double(bare.Private()) / 1024);
        MeasureIdle("idle: bare window", bare, seconds);
        MeasureIdle("idle: help screen", game, seconds);
        StartGame(game);
        game.Window().Key("space");
        MeasureIdle("idle: practice game", game, seconds);
        PrintPair("resident memory, in a game", "MB", double(game.Resident()) / 1024,
                  double(bare.Resident()) / 1024);
        MeasureKeys(game, bare, Argument(argc, argv, 2, 200));
    }
    const Running master(kGame, display);
    for (const QPoint click : {QPoint(366, 216), QPoint(115, 207)}) {
        master.Window().Click(click);
        QThread::msleep(500);
    }
    StartGame(master);
    master.Window().Key("space");
    MeasureIdle("master level", master, seconds);
}
