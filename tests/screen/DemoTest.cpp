#include <gtest/gtest.h>
#include <sys/resource.h>

#include <QTest>
#include <csignal>

#include "tests/support/Files.h"
#include "tests/support/GameWindow.h"

namespace {

using namespace std::chrono_literals;

// The points before and after each lock that scored, at practice level: worked out by another program from
// the script.
const std::vector<std::int32_t> kScores{0,     90,    150,   250,   320,   360,   420,   1020,  1110,  1180,
                                        7680,  8180,  8530,  8880,  9180,  9830,  9920,  10000, 10090, 10180,
                                        10830, 13430, 13510, 13600, 13680, 13760, 13850, 13920, 14420, 14470};

TEST(Demo, PlaysTheSameGameAtEveryLevel) {
    for (int level = 0; level < 5; ++level) {
        SCOPED_TRACE(level);
        GameWindow game;
        game.form->lblClass_Click(static_cast<std::int16_t>(level));
        std::vector<std::int32_t> scores{0};
        game.time.onProcessEvents = [&] {
            const std::int32_t score =
                game.Model().Score() / std::array{1, 2, 2, 5, 7}.at(std::size_t(level));
            if (scores.back() != score) scores.push_back(score);
        };
        game.form->cmdDemo_Click();
        EXPECT_EQ(scores, kScores);
        EXPECT_EQ(game.Model().CardsUsed(), 46);
        EXPECT_GE(game.time.Now(), 171800ms);
        for (int cell = 0; cell < 16; ++cell) {
            EXPECT_EQ(game.Cell(cell).Picture(), game.Card(36));
            EXPECT_FALSE(game.Cell(cell).isEnabled());
        }
        EXPECT_FALSE(game.form->Timer1.Enabled() || game.form->Timer2.Enabled());
        game.form->imgButton_Click(0);
        EXPECT_TRUE(game.Cell(12).isEnabled());
    }
}

// Whatever happens while a demonstration lets events run: it ends within its step, or goes on undisturbed.
TEST(Demo, AnythingMayHappenInside) {
    const auto drop = [](GameWindow& g) {
        const QString file = g.folder.filePath("dropped.png");
        WriteSkin(file);
        std::int16_t slot = 5;
        std::int32_t effect = 0;
        g.form->picSkin_OLEDragDrop(slot, file, effect, 0, 0, 0, 0);
    };
    const auto keys = [](GameWindow& g) {
        for (const Qt::Key key : {Qt::Key_P, Qt::Key_Up}) QTest::keyClick(g.form.get(), key);
    };
    const std::tuple<const char*, std::function<void(GameWindow&)>, bool> cases[] = {
        {"play", [](GameWindow& g) { g.form->imgButton_Click(0); }, true},
        {"help", [](GameWindow& g) { g.form->imgButton_Click(2); }, true},
        {"the exit image", [](GameWindow& g) { g.form->Image1_Click(); }, true},
        {"close", [](GameWindow& g) { g.form->close(); }, true},
        {"a level", [](GameWindow& g) { g.form->lblClass_Click(3); }, false},
        {"another skin", [](GameWindow& g) { g.form->picSkin_MouseUp(0, 1, 0, 0, 0); }, false},
        {"a dropped skin", drop, false},
        {"minimise", [](GameWindow& g) { g.form->imgMinimaize_Click(); }, false},
        {"a second demonstration", [](GameWindow& g) { g.form->cmdDemo_Click(); }, false},
        {"keys", keys, false},
    };
    for (const auto& [what, happens, ends] : cases)
        for (const int when : {1, 3, 8, 9, 40}) {  // in moves, in locks, and between
            SCOPED_TRACE(testing::Message() << what << " at " << when);
            GameWindow game;
            game.form->show();
            int calls = 0;
            game.time.onProcessEvents = [&, &act = happens] {
                if (++calls == when) act(game);
            };
            game.form->cmdDemo_Click();
            if (ends)
                EXPECT_LE(calls, when + 2);
            else
                EXPECT_EQ(game.Model().CardsUsed(), 46);
        }
}

TEST(Recording, IsAddedToTheFileAsOftenAsAsked) {
    GameWindow game;
    const QString path = game.folder.filePath("array.txt");
    game.form->cmdPrint_Click();
    EXPECT_FALSE(QFile::exists(path));  // before the first game there is nothing to write
    game.PlayKinds({7, 16});
    game.form->picMat_MouseMove(8, 0, 0, 0, 0);
    game.form->picMat_MouseMove(4, 0, 0, 0, 0);
    const QByteArray once = "ArrDemo(0) = 0\r\nArrDemo(1) = 8\r\nArrDemo(2) = 4\r\nArrDemoCard(0) = 7\r\n";
    game.form->cmdPrint_Click();
    EXPECT_EQ(ReadFile(path), once);
    game.form->cmdPrint_Click();
    EXPECT_EQ(ReadFile(path), once + once);
    QFile::remove(path);
    QDir().mkdir(path);  // nothing can be written there
    game.form->cmdPrint_Click();
    EXPECT_EQ(game.dialogs.told.size(), 1);
}

// The disk is full in the middle of the text.
TEST(Recording, ThatDoesNotFitLeavesTheFileAsItWas) {
    const QTemporaryDir folder;
    const QString path = folder.filePath("array.txt");
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const auto append = [&](rlim_t room, const QByteArray& text) {
        const rlimit full{room, before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &full);
        const bool appended = AppendToFile(path, text);
        setrlimit(RLIMIT_FSIZE, &before);
        return appended;
    };
    EXPECT_FALSE(append(10, QByteArray(100, 'x')));
    EXPECT_FALSE(QFile::exists(path));
    EXPECT_TRUE(append(10, "kept\r\n"));
    EXPECT_FALSE(append(10, QByteArray(100, 'x')));
    EXPECT_EQ(ReadFile(path), "kept\r\n");
}

TEST(Recording, AFullOneStopsGrowingAndTheCardStillMoves) {
    Recording recording;
    recording.NewGame(3);
    for (int i = 0; i < 40000; ++i) recording.Move(static_cast<std::int16_t>(i % 16));
    EXPECT_EQ(recording.DemoMoveCount(), 32767);
    EXPECT_EQ(recording.DemoCardCount(), 1);
}

}  // namespace
