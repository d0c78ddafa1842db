// A turn and a game on virtual time, where random play does not look closely enough.

#include "tests/support/GameWindow.h"

using namespace std::chrono_literals;

namespace {

constexpr int kExpert = 3, kMaster = 4;

TEST(Game, MovesTheTimeBarWithTheLevel) {
    const std::tuple<const char*, int, std::chrono::milliseconds, int> cases[] = {
        {"senior: after 117.5 ms, a tie", 2, 117ms, 0},
        {"senior: rounded up", 2, 118ms, 3},
        {"expert: full after 34 ticks, and stays so", kExpert, 3600ms, 100},
        {"master: three each tick of 43 ms", kMaster, 44ms, 3},
    };
    for (const auto& [what, level, pass, value] : cases) {
        GameWindow game;
        game.PlayKinds({0, 16, 32}, level);
        game.Lock();
        game.time.Pass(pass);
        EXPECT_EQ(game.form->prbTime.Value(), value) << what;
    }
}

TEST(Game, PauseStopsTimeAndInputAndGivesTheWholeTimeAgain) {
    GameWindow game;
    game.PlayKinds({0, 16, 32, 5}, kMaster);
    game.Lock();
    game.time.Pass(2000ms);
    const auto before = game.time.Now();
    game.Key(80);
    EXPECT_EQ(game.time.Now() - before, 800ms);  // fifty a cell
    for (const int key : {32, 37, 38, 39, 40, 27}) game.Key(key);
    game.MoveTo(3);
    EXPECT_EQ(game.Model().PosCurrentCard(), 12);
    game.Key(80);
    for (const auto& [pass, locked] : {std::pair(2155ms, 1), {1ms, 2}}) {
        game.time.Pass(pass);
        EXPECT_EQ(game.Model().CardsInMatrix(), locked);
    }
    game.form->imgButton_Click(1);
    game.Key(27), game.Lock();
    EXPECT_FALSE(game.ended) << "Escape means nothing on another screen";
    game.Play(), game.Key(27);
    EXPECT_TRUE(game.ended);
}

TEST(Game, MouseMovesOnceIntoACellAndLocksWhereTheCardIs) {
    GameWindow game;
    frmGame& form = *game.form;
    game.PlayKinds({0, 16, 32});
    form.picMat_MouseMove(0, 0, 0, 0, 0);  // the pointer is taken to start in cell 0
    EXPECT_EQ(game.Model().PosCurrentCard(), 12);
    form.picMat_MouseMove(5, 0, 0, 0, 0);
    form.picMat_MouseUp(5, 2, 0, 0, 0);
    EXPECT_EQ(game.Model().CardsInMatrix(), 0);
    form.picMat_MouseUp(5, 1, 0, 0, 0);
    form.picMat_MouseMove(5, 0, 0, 0, 0);  // it rests there: no move
    form.picMat_MouseUp(100, 1, 0, 0, 0);  // any index locks the active card where it is
    form.LockInCell(5);                    // taken
    form.LockInCell(6);
    for (const auto& [cell, kind] : {std::pair(5, 0), {12, 16}, {6, 32}})
        EXPECT_EQ(game.Model().CardAt(static_cast<std::int16_t>(cell)).Number, kind);
}

// A press is taken back beside the cells; P is a key and not a letter, and does not repeat.
TEST(Game, AnswersTheReleaseOfAButtonAndThePressOfAKey) {
    GameWindow game;
    frmGame& form = *game.form;
    form.show(), form.activateWindow();
    QCoreApplication::processEvents();
    game.PlayKinds({0, 16, 32});
    for (const auto& [at, cards] :
         {std::pair(QPoint(-20, 10), 0), {QPoint(65, 10), 0}, {QPoint(80, 10), 1}}) {
        QTest::mousePress(&form.picMat[0], Qt::LeftButton, {}, QPoint(9, 9));
        QTest::mouseRelease(&form.picMat[0], Qt::LeftButton, {}, at);
        EXPECT_EQ(game.Model().CardsInMatrix(), cards);
    }
    for (const bool repeat : {false, true})
        QTest::simulateEvent(form.windowHandle(), true, Qt::Key_P, {}, "p", repeat);
    EXPECT_EQ(form.play, frmGame::Play::Paused);
    const QPoint corner = form.pos();
    QTest::mousePress(&form.prbTime, Qt::LeftButton);
    QTest::mouseMove(&form, QPoint(200, 9));
    EXPECT_EQ(form.pos(), corner);
}

TEST(Game, MadeUpArgumentsDoNoHarm) {
    GameWindow game;
    game.PlayKinds({0, 16, 32});
    for (const std::int16_t index : std::initializer_list<std::int16_t>{-1, 16, 100, 32767, -32768}) {
        for (const auto handler : {&frmGame::picMat_MouseMove, &frmGame::imgButton_MouseDown,
                                   &frmGame::lblClass_MouseMove, &frmGame::picSkin_MouseMove})
            (*game.form.*handler)(index, 1, 0, 0, 0);
        game.form->imgButton_Click(index), game.form->lblClass_Click(index);
        game.form->picSkin_MouseUp(index, 1, 0, 0, 0);
    }
    EXPECT_TRUE(game.Model().PosCurrentCard() == 12 && game.form->fraScreen[0].Visible());
}

}  // namespace
