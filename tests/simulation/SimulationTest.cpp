// The program in a simulated world: random events on virtual time, with every invariant checked after each.
// RC_PARAMS="max_success=10000 seed=7" in the environment asks for more worlds, or others.

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <QApplication>
#include <QLoggingCategory>

#include "screen/Look.h"
#include "tests/simulation/Simulation.h"
#include "tests/support/Files.h"

using namespace std::chrono_literals;

namespace {

#ifdef NDEBUG
constexpr const char* kWorlds = "seed=1 max_success=250";
constexpr long kMorePages = 1000;
#else  // the sanitizers take several times as long, and keep what was released
constexpr const char* kWorlds = "seed=1 max_success=30";
constexpr long kMorePages = 1'000'000;
#endif

rc::Gen<Script> AnyScript(int most) {
    std::vector<std::size_t> lots;  // each kind as often as it weighs
    for (std::size_t kind = 0; kind < EventKinds().size(); ++kind)
        lots.insert(lots.end(), EventKinds()[kind].weight, kind);
    const auto choice = rc::gen::noShrink(rc::gen::resize(rc::kNominalSize, rc::gen::arbitrary<unsigned>()));
    const auto event = rc::gen::map(rc::gen::pair(rc::gen::noShrink(rc::gen::elementOf(lots)), choice),
                                    [](const auto& drawn) {
                                        return Event{drawn.first, drawn.second};
                                    });
    return rc::gen::resize(most, rc::gen::container<Script>(event));
}

long Pages() {
    return ReadFile("/proc/self/statm").split(' ').value(1).toLong();
}

qsizetype OpenFiles() {
    return QDir("/proc/self/fd").entryList(QDir::AllEntries | QDir::System).size();
}

}  // namespace

// Shows a script that broke something.
std::ostream& operator<<(std::ostream& out, const Event& event) {
    return out << EventKinds()[event.kind].name << ' ' << event.choice;
}

TEST(Simulation, NothingBreaksAnInvariant) {
    int games = 0, worlds = 0;
    rc::detail::checkGTest([&] {
        Simulation world(*rc::gen::arbitrary<unsigned>().as("seed of the game's chance"));
        world.Play(*AnyScript(800));
        games += world.gamesBefore + world.random.games, ++worlds;
        if (!world.broken.empty()) RC_FAIL(world.broken);
    });
    EXPECT_GE(games, 3 * worlds);  // otherwise the player is kept from playing
}

// An unhurried player: a few events, then minutes of nothing.
TEST(Simulation, ADayOfPlayLeavesNothingBehind) {
    Simulation world(1);
    rc::Random chance(1);
    const auto playUntil = [&](std::chrono::hours end) {
        while (world.time.Now() < end) {
            world.Play(AnyScript(40)(chance.split(), 0).value());
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

int main(int argc, char* argv[]) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    if (!qEnvironmentVariableIsSet("RC_PARAMS")) qputenv("RC_PARAMS", kWorlds);
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    Look::Apply(application);
    QLoggingCategory::setFilterRules(QStringLiteral("*.warning=false"));  // the platform cannot raise windows
    return RUN_ALL_TESTS();
}
