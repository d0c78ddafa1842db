// The program in a simulated world: random events on virtual time, with every invariant checked after each.
// RC_PARAMS="max_success=10000 seed=7" in the environment asks for more worlds, or others.

#include <gtest/gtest.h>
#include <malloc.h>
#include <rapidcheck/gtest.h>

#include <QPixmapCache>

#include "tests/simulation/Simulation.h"

TEST(Simulation, NothingBreaksAnInvariantOrStaysBehind) {
    std::vector<qsizetype> files, bytes;  // in use before each world
    int games = 0;
    rc::detail::checkGTest([&] {
        files.push_back(QDir("/dev/fd").entryList(QDir::AllEntries | QDir::System).size());
        QPixmapCache::clear();
        bytes.push_back(qsizetype(mallinfo2().uordblks));
        Simulation world(*rc::gen::arbitrary<unsigned>().as("seed of the game's chance"));
        world.Play(*AnyScript(800));
        games += world.random.games;
        if (!world.broken.empty()) RC_FAIL(world.broken);
    });
    EXPECT_GE(games, 3 * int(files.size()));               // otherwise the player is kept from playing
    EXPECT_LE(files.back(), files[files.size() / 2] + 2);  // a font that is needed for the first time
    EXPECT_LE(bytes.back(), bytes[bytes.size() / 2] + 1'000'000);
}
