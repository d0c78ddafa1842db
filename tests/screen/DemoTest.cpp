#include <gtest/gtest.h>

#include <QTest>

#include "screen/DemoScript.h"
#include "tests/support/GameWindow.h"

namespace {

using namespace std::chrono_literals;

TEST(Demo, ScriptHasATurnForEachLockAndErasersWhereTheyBelong) {
    EXPECT_EQ(std::count(DemoScriptMoves.begin(), DemoScriptMoves.end(), kDemoLock), 161);
    EXPECT_EQ(DemoScriptMoves.back(), kDemoLock);
    std::vector<int> erasers;
    for (std::size_t i = 0; i < DemoScriptCards.size(); ++i)
        if (DemoScriptCards[i] > kLastOrdinaryKind) erasers.push_back(static_cast<int>(i));
    EXPECT_EQ(erasers, (std::vector{0, 13, 18, 23, 47, 50, 78, 98, 105, 113, 118, 129, 153}));
}

// The points after each lock that scored, at practice level: worked out by another program from the script.
constexpr std::int32_t kScores[] = {90,    150,   250,   320,   360,   420,   1020,  1110,  1180,  7680,
                                    8180,  8530,  8880,  9180,  9830,  9920,  10000, 10090, 10180, 10830,
                                    13430, 13510, 13600, 13680, 13760, 13850, 13920, 14420, 14470};

TEST(Demo, PlaysTheSameGameAtEveryLevel) {
    for (int level = 0; level < 5; ++level) {
        SCOPED_TRACE(level);
        GameWindow game;
        game.form->lblClass_Click(static_cast<std::int16_t>(level));
        std::vector<std::int32_t> scores;
        game.time.onProcessEvents = [&] {
            const std::int32_t score =
                game.Model().Score() / std::array{1, 2, 2, 5, 7}.at(std::size_t(level));
            if (score != 0 && (scores.empty() || scores.back() != score)) scores.push_back(score);
        };
        game.form->cmdDemo_Click();
        EXPECT_EQ(scores, std::vector(std::begin(kScores), std::end(kScores)));
        EXPECT_EQ(game.Model().CardsUsed(), 46);
        EXPECT_EQ(game.Model().CardsInMatrix(), 1);
        EXPECT_EQ(game.Model().CardAt(3), (CardInfo{game.Model().CardAt(3).Number, 1, 2, 4}));
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
    struct Case {
        const char* what;
        std::function<void(GameWindow&)> happens;
        bool ends;
    };
    const Case cases[] = {
        {"play", [](GameWindow& g) { g.form->imgButton_Click(0); }, true},
        {"menu", [](GameWindow& g) { g.form->imgButton_Click(1); }, true},
        {"help", [](GameWindow& g) { g.form->imgButton_Click(2); }, true},
        {"score", [](GameWindow& g) { g.form->imgButton_Click(3); }, true},
        {"more", [](GameWindow& g) { g.form->imgButton_Click(4); }, true},
        {"the exit image", [](GameWindow& g) { g.form->Image1_Click(); }, true},
        {"close", [](GameWindow& g) { g.form->close(); }, true},
        {"a level", [](GameWindow& g) { g.form->lblClass_Click(3); }, false},
        {"another skin", [](GameWindow& g) { g.form->picSkin_MouseUp(0, 1, 0, 0, 0); }, false},
        {"a dropped skin",
         [](GameWindow& g) {
             const QString file = g.folder.filePath("dropped.png");
             WriteSkin(file);
             std::int16_t slot = 5;
             std::int32_t effect = 0;
             g.form->picSkin_OLEDragDrop(slot, file, effect, 0, 0, 0, 0);
         },
         false},
        {"minimise", [](GameWindow& g) { g.form->imgMinimaize_Click(); }, false},
        {"a second demonstration", [](GameWindow& g) { g.form->cmdDemo_Click(); }, false},
        {"keys",
         [](GameWindow& g) {
             QTest::keyClick(g.form.get(), Qt::Key_P), QTest::keyClick(g.form.get(), Qt::Key_Up);
         },
         false},
    };
    for (const Case& c : cases)
        for (const int when : {1, 3, 8, 9, 40}) {  // in moves, in locks, and between
            SCOPED_TRACE(testing::Message() << c.what << " at " << when);
            GameWindow game;
            game.form->show();
            int calls = 0, after = 0;
            game.time.onProcessEvents = [&] {
                if (++calls == when) c.happens(game);
                if (calls > when) ++after;
            };
            game.form->cmdDemo_Click();
            if (c.ends)
                EXPECT_LE(after, 2);
            else
                EXPECT_EQ(game.Model().CardsUsed(), 46);
        }
}

TEST(Recording, IsAddedToTheFileAsOftenAsAsked) {
    GameWindow game;
    const QString path = game.folder.filePath("array.txt");
    const auto written = [&path] {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    game.form->cmdPrint_Click();
    EXPECT_FALSE(QFile::exists(path));  // before the first game there is nothing to write
    game.PlayKinds({7, 16});
    game.form->picMat_MouseMove(8, 0, 0, 0, 0);
    game.form->picMat_MouseMove(4, 0, 0, 0, 0);
    const QByteArray once = "ArrDemo(0) = 0\r\nArrDemo(1) = 8\r\nArrDemo(2) = 4\r\nArrDemoCard(0) = 7\r\n";
    game.form->cmdPrint_Click();
    EXPECT_EQ(written(), once);
    game.form->cmdPrint_Click();
    EXPECT_EQ(written(), once + once);
    QFile::remove(path);
    QDir().mkdir(path);  // nothing can be written there
    game.form->cmdPrint_Click();
    EXPECT_EQ(game.dialogs.told.size(), 1);
}

TEST(Recording, AFullOneStopsGrowingAndTheCardStillMoves) {
    Recording recording;
    recording.NewGame(3);
    for (int i = 0; i < 40000; ++i) recording.Move(static_cast<std::int16_t>(i % 16));
    EXPECT_EQ(recording.DemoMoveCount(), 32767);
    EXPECT_EQ(recording.DemoCardCount(), 1);
}

}  // namespace
