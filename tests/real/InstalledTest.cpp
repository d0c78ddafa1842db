// The program as it is installed, far from its build, for players who may write nothing beside it.

#include <gtest/gtest.h>

#include <QDir>

#include "tests/real/Player.h"

TEST(Installed, IsPlayedByWhoHasAFolderForSkinsAndByWhoHasNone) {
    const QTemporaryDir prefix, home;
    ASSERT_EQ(QProcess::execute(
                  "cmake", {"--install", TESSELOR_BUILD, "--component", "system", "--prefix", prefix.path()}),
              0);
    for (const QString& data : {home.filePath("data"), QString("/proc/data")}) {
        qputenv("XDG_DATA_HOME", data.toUtf8());
        Player player(1, {}, prefix.filePath("games/tesselor"));
        ASSERT_TRUE(player.Window().Found());
        player.Click({366, 262});  // play
        EXPECT_TRUE(player.AwaitTurn()) << "no skin to play with";
        EXPECT_EQ(player.Leave(), 0);
    }
    EXPECT_EQ(QDir(home.filePath("data/Tesselor/Art")).entryList(QDir::Files),
              QDir(TESSELOR_BUILD "/Art").entryList(QDir::Files));
}
