// The program in a simulated world. Without arguments the tests; "--seeds FROM COUNT [EVENTS]" runs as many
// worlds as wanted and prints the first that breaks, with as few events as do it.

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QLoggingCategory>
#include <cstdio>

#include "screen/Look.h"
#include "tests/simulation/Simulation.h"
#include "tests/support/Files.h"

using namespace std::chrono_literals;

namespace {

constexpr std::size_t kEvents = 400;  // in a world
#ifdef NDEBUG
constexpr unsigned kSeeds = 300;
constexpr long kMorePages = 1000;
#else  // the sanitizers take several times as long, and keep what was released
constexpr unsigned kSeeds = 12;
constexpr long kMorePages = 1'000'000;
#endif

// Leaves only what happened up to the break; nothing when `events` break nothing.
bool CutToBreak(unsigned seed, Script& events) {
    Simulation world(seed);
    world.Play(events);
    if (world.broken.empty()) return false;
    events.resize(world.happened);
    return true;
}

// As few of `events` as still break something under `seed`, by leaving out ever smaller runs of them.
Script Shrink(unsigned seed, Script events) {
    CutToBreak(seed, events);
    for (std::size_t run = std::max<std::size_t>(events.size() / 2, 1); run > 0;) {
        const std::size_t length = events.size();
        for (std::size_t from = 0; from < events.size();) {
            Script fewer(events);
            const auto first = fewer.begin() + std::ptrdiff_t(from);
            fewer.erase(first, first + std::ptrdiff_t(std::min(run, fewer.size() - from)));
            if (CutToBreak(seed, fewer))
                events = fewer;
            else
                from += run;
        }
        if (run > 1 || events.size() == length) run /= 2;
    }
    return events;
}

// What `events` break under `seed`, and the events, one a line.
std::string Report(unsigned seed, const Script& events) {
    Simulation world(seed);
    world.Play(events);
    std::string report = "seed " + std::to_string(seed) + ": " + world.broken + "\nbroken by";
    for (const Event& event : events)
        report += "\n  " + std::string(EventKinds()[event.kind].name) + ' ' + std::to_string(event.choice);
    return report;
}

struct Totals {
    std::size_t events = 0;
    int games = 0;
};

// What broke under `seed`, with the events that are enough for it; empty when nothing did.
std::string RunSeed(unsigned seed, std::size_t events, Totals& totals) {
    std::fprintf(stderr, "\rseed %u ", seed);  // the last word before a crash
    const Script script = MakeScript(seed, events);
    {
        Simulation world(seed);
        world.Play(script);
        totals.events += world.happened;
        totals.games += world.gamesBefore + world.dealer.games;
        if (world.broken.empty()) return {};
    }
    return Report(seed, Shrink(seed, script));
}

TEST(Simulation, NothingBreaksAnInvariant) {
    Totals totals;
    for (unsigned seed = 0; seed < kSeeds; ++seed) ASSERT_EQ(RunSeed(seed, kEvents, totals), "");
    EXPECT_GE(totals.games, 4 * int(kSeeds));  // otherwise the player is kept from playing
}

TEST(Simulation, ASeedIsTheSameWorldWhateverWasBefore) {
    const auto trace = [](unsigned seed) {
        Simulation world(seed);
        world.Play(MakeScript(seed, kEvents));
        return world.trace;
    };
    const std::uint64_t first = trace(7);
    EXPECT_NE(first, trace(8));
    EXPECT_EQ(first, trace(7));
}

long Pages() {
    return ReadFile("/proc/self/statm").split(' ').value(1).toLong();
}

qsizetype OpenFiles() {
    return QDir("/proc/self/fd").entryList(QDir::AllEntries | QDir::System).size();
}

// An unhurried player: a few events, then minutes of nothing.
TEST(Simulation, ADayOfPlayLeavesNothingBehind) {
    Simulation world(1);
    const auto playUntil = [&world](std::chrono::hours end) {
        while (world.time.Now() < end) {
            world.Play(MakeScript(unsigned(world.time.Now().count()), 20));
            ASSERT_EQ(world.broken, "");
            world.time.Pass(5min);
        }
    };
    playUntil(12h);
    const long pages = Pages();
    const qsizetype files = OpenFiles();
    playUntil(24h);
    EXPECT_LE(OpenFiles(), files + 2);  // a font that is needed for the first time
    EXPECT_LE(Pages(), pages + kMorePages);
}

int RunSeeds(unsigned from, unsigned count, std::size_t events) {
    QElapsedTimer clock;
    clock.start();
    Totals totals;
    int broken = 0;
    for (unsigned seed = from; seed < from + count; ++seed) {
        const std::string report = RunSeed(seed, events, totals);
        if (report.empty()) continue;
        std::puts(report.c_str());
        broken = 1;
        break;
    }
    std::printf("%zu events, %d games, %.1f s\n", totals.events, totals.games,
                double(clock.elapsed()) / 1000);
    return broken;
}

}  // namespace

int main(int argc, char* argv[]) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    Look::Apply(application);
    QLoggingCategory::setFilterRules(QStringLiteral("*.warning=false"));  // the platform cannot raise windows
    const QStringList words = QApplication::arguments();
    if (words.value(1) != "--seeds") return RUN_ALL_TESTS();
    return RunSeeds(words.value(2).toUInt(), words.value(3).toUInt(), words.value(4, "400").toUInt());
}
