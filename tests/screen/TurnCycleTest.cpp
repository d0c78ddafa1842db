#include <gtest/gtest.h>

#include "tests/support/GameWindow.h"
#include "tests/support/PaintWatch.h"

using namespace std::chrono_literals;

static constexpr int kJunior = 1, kExpert = 3, kMaster = 4;

TEST(TurnCycle, LocksALateCardExactlyWhenItsTimeIsUp) {
    GameWindow game;
    game.PlayKinds({0, 16, 32, 0}, kMaster);
    game.time.Pass(60s);  // the first card has no limit
    EXPECT_EQ(game.Model().CardsInMatrix(), 0);
    game.Lock();
    game.random.script = {7, 16, 32};
    game.time.Pass(2155ms);
    EXPECT_EQ(game.Model().CardsInMatrix(), 1);
    game.time.Pass(1ms);
    EXPECT_EQ(game.Model().CardAt(7).Number, 16);
    EXPECT_FALSE(game.Model().RndAction());
    EXPECT_EQ(game.form->Timer1.Interval(), 2112);  // 2112.5, a tie
}

TEST(TurnCycle, MovesTheTimeBarWithTheLevel) {
    const std::tuple<const char*, int, std::chrono::milliseconds, int> cases[] = {
        {"practice: never", 0, 60s, 0},
        {"junior: two each tick of 196 ms", kJunior, 197ms, 2},
        {"junior: nearly full before the time is up", kJunior, 9700ms, 98},
        {"senior: after 117.5 ms, a tie", 2, 117ms, 0},
        {"expert: three each tick of 73 ms", kExpert, 147ms, 6},
        {"expert: full after 34 ticks, and stays so", kExpert, 3600ms, 100},
    };
    for (const auto& [what, level, pass, value] : cases) {
        GameWindow game;
        game.PlayKinds({0, 16, 32}, level);
        game.Lock();
        game.time.Pass(pass);
        EXPECT_EQ(game.form->prbTime.Value(), value) << what;
    }
}

TEST(TurnCycle, AFullTimeBarMovesAgainAfterAPause) {
    GameWindow game;
    game.PlayKinds({0, 16, 32}, kExpert);
    game.Lock();
    game.time.Pass(3000ms);
    EXPECT_EQ(game.form->prbTime.Value(), 100);
    EXPECT_TRUE(game.form->Timer2.Enabled());
    game.RightClick(), game.RightClick();
    game.time.Pass(147ms);
    EXPECT_EQ(game.form->prbTime.Value(), 6);
}

TEST(TurnCycle, PauseStopsTimeAndInputAndGivesTheWholeTimeAgain) {
    GameWindow game;
    game.PlayKinds({0, 16, 32, 5}, kMaster);
    game.RightClick(), game.RightClick();
    game.time.Pass(1h);  // the first card still has no limit
    game.Lock();
    game.time.Pass(2000ms);
    const auto before = game.time.Now();
    game.Key(80);
    EXPECT_EQ(game.time.Now() - before, 800ms);  // fifty a cell
    for (const int key : {32, 37, 38, 39, 40, 27}) game.Key(key);
    game.MoveTo(3);
    game.form->picMat_MouseUp(3, 1, 0, 0, 0);
    game.time.Pass(1h);
    EXPECT_EQ(game.Model().PosCurrentCard(), 12);
    EXPECT_FALSE(game.ended);
    EXPECT_EQ(game.form->prbTime.Value(), 0);
    EXPECT_EQ(game.Cell(3).Picture(), game.Card(36));
    game.RightClick();
    game.time.Pass(2155ms);
    EXPECT_EQ(game.Model().CardsInMatrix(), 1);
    game.time.Pass(1ms);
    EXPECT_EQ(game.Model().CardsInMatrix(), 2);
}

TEST(TurnCycle, MouseMovesOnceIntoACellAndLocksWhereTheCardIs) {
    GameWindow game;
    game.PlayKinds({0, 16, 32});
    game.form->picMat_MouseMove(0, 0, 0, 0, 0);  // the pointer is taken to start in cell 0
    EXPECT_EQ(game.Model().PosCurrentCard(), 12);
    game.form->picMat_MouseMove(5, 0, 0, 0, 0);
    game.form->picMat_MouseUp(5, 2, 0, 0, 0);
    EXPECT_EQ(game.Model().CardsInMatrix(), 0);
    game.form->picMat_MouseUp(5, 1, 0, 0, 0);
    EXPECT_EQ(game.Model().CardAt(5).Number, 0);
    game.form->picMat_MouseMove(5, 0, 0, 0, 0);  // it rests there: no move
    game.form->picMat_MouseUp(100, 1, 0, 0, 0);  // any index locks the active card where it is
    EXPECT_EQ(game.Model().CardAt(12).Number, 16);
}

TEST(TurnCycle, ShowsScoreAndCardsAfterEachLock) {
    GameWindow game;
    game.PlayKinds({0, 0, 0, 0, 16, 32}, kExpert);
    for (const int cell : {0, 1, 2, 3}) game.LockAt(cell);
    EXPECT_EQ(game.form->lblScore.Caption(), "4,000");    // 200 points, 4 cards, factor 5
    EXPECT_EQ(game.form->lblCardsLeft.Caption(), "113");  // four used, seventeen given back
    game.LockAt(5);
    EXPECT_EQ(game.form->lblSerieScore.Caption(), "4000");  // a lock without points leaves it
}

TEST(TurnCycle, KeysActOnlyOnTheBoardAndEscapeEndsAtOnce) {
    GameWindow game;
    game.Play();
    game.form->imgButton_Click(1);
    game.Key(27), game.Lock();
    EXPECT_FALSE(game.ended || game.Model().CardsInMatrix() > 0);
    game.Play();
    game.Key(27);
    EXPECT_TRUE(game.ended);
}

TEST(TurnCycle, MadeUpArgumentsDoNoHarm) {
    GameWindow game;
    game.PlayKinds({0, 16, 32});
    for (const std::int16_t index : std::initializer_list<std::int16_t>{-1, 16, 100, 32767, -32768}) {
        game.form->picMat_MouseMove(index, 0, 0, 0, 0);
        game.form->imgButton_Click(index);
        game.form->imgButton_MouseDown(index, 1, 0, 0, 0);
        game.form->lblClass_Click(index);
        game.form->lblClass_MouseMove(index, 0, 0, 0, 0);
        game.form->picSkin_MouseMove(index, 0, 0, 0, 0);
        game.form->picSkin_MouseUp(index, 1, 0, 0, 0);
    }
    EXPECT_EQ(game.Model().PosCurrentCard(), 12);
    EXPECT_TRUE(game.form->fraScreen[0].Visible());
}

TEST(TurnCycle, AMoveRepaintsTheTwoCellsAndNothingElse) {
    GameWindow game;
    game.PlayKinds({0, 16});
    game.form->show();
    QCoreApplication::processEvents();
    const auto place = [&](int cell) {
        return QRect(game.Cell(cell).mapTo(game.form.get(), QPoint(0, 0)), game.Cell(cell).size());
    };
    PaintWatch watch(*game.form);
    game.Key(kKeyRight);
    QCoreApplication::processEvents();
    EXPECT_EQ(watch.painted, QRegion(place(12)) + place(13));
    watch.painted = {};
    game.MoveTo(3);
    QCoreApplication::processEvents();
    EXPECT_EQ(watch.painted, QRegion(place(13)) + place(3));
}
