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
    std::vector<qsizetype> files, pages;
    for (const auto end : {12h, 24h}) {
        for (; world.time.Now() < end; world.time.Pass(5min)) {
            world.Play(AnyScript(40)(chance.split(), 0).value());
            ASSERT_EQ(world.broken, "");
        }
        files.push_back(QDir("/proc/self/fd").entryList(QDir::AllEntries | QDir::System).size());
        pages.push_back(ReadFile("/proc/self/statm").split(' ').value(1).toLong());
    }
    EXPECT_LE(files[1], files[0] + 2);  // a font that is needed for the first time
    EXPECT_LE(pages[1], pages[0] + kMorePages);
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
