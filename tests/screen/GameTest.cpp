// A turn and a game on virtual time, where random play does not look closely enough.

#include "tests/support/GameWindow.h"

using namespace std::chrono_literals;

namespace {

constexpr int kJunior = 1, kExpert = 3, kMaster = 4;

TEST(Game, MovesTheTimeBarWithTheLevel) {
    const std::tuple<const char*, int, std::chrono::milliseconds, int> cases[] = {
        {"practice: never", 0, 60s, 0},
        {"junior: two each tick of 196 ms", kJunior, 197ms, 2},
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
        game.RightClick(), game.RightClick();
        EXPECT_EQ(game.form->prbTime.Value(), 0) << what;
        game.time.Pass(pass);
        EXPECT_EQ(game.form->prbTime.Value(), value) << what << ", after a pause";
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

TEST(Game, MadeUpArgumentsDoNoHarm) {
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

}  // namespace
