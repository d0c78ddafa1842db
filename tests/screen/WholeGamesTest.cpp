// Whole games on virtual time, to both ends.

#include <gtest/gtest.h>

#include "tests/support/GameWindow.h"

namespace {

using namespace std::chrono_literals;

void ExpectGameOver(GameWindow& game) {
    EXPECT_TRUE(game.Model().RndAction());
    EXPECT_FALSE(game.form->Timer1.Enabled() || game.form->Timer2.Enabled());
    EXPECT_EQ(game.form->prbTime.Value(), 0);
    EXPECT_EQ(game.form->picPreview.Picture(), game.Card(36));
    for (int cell = 0; cell < 16; ++cell) EXPECT_EQ(game.Cell(cell).Picture(), game.Card(36));
    const auto cards = game.Model().CardsInMatrix();
    game.RightClick();  // a finished game is not resumed
    game.Lock();
    game.time.Pass(1h);
    EXPECT_EQ(game.Model().CardsInMatrix(), cards);
    EXPECT_TRUE(game.Model().RndAction());
}

// Sixteen kinds, cell by cell, of which no line of four shares anything.
constexpr std::array<std::int16_t, 16> kNothingShared = {8,  4,  16, 7, 31, 24, 14, 15,
                                                         20, 12, 25, 6, 3,  28, 0,  26};

TEST(WholeGames, AFullBoardEndsTheGame) {
    for (const int level : {0, 4}) {
        GameWindow game;
        game.random.script.assign(kNothingShared.begin(), kNothingShared.end());
        std::swap(game.random.script[0], game.random.script[1]);
        game.Play(level);
        for (int cell = 0; cell < 16; ++cell) {
            ASSERT_EQ(game.Model().CardsInMatrix(), cell);
            game.LockAt(cell);
        }
        EXPECT_EQ(game.Model().CardsInMatrix(), 16);
        EXPECT_EQ(game.Model().Score(), 0);
        ExpectGameOver(game);
    }
}

// Four kinds that share their colour and nothing else: a row of them gives one card back.
constexpr std::array<std::int16_t, 4> kOneColour = {0, 12, 3, 18};

TEST(WholeGames, AHundredCardsEndTheGame) {
    for (const int level : {0, 4}) {
        GameWindow game;
        for (int row = 0; row < 34; ++row)
            game.random.script.insert(game.random.script.end(), kOneColour.begin(), kOneColour.end());
        std::swap(game.random.script[0], game.random.script[1]);
        game.Play(level);
        int locks = 0;
        for (; locks < 136 && game.form->play == frmGame::Play::On; ++locks) {
            game.LockAt(locks % 4);
            game.time.Pass(500ms);
        }
        EXPECT_EQ(locks, 133);  // thirty-three rows use three cards each, and one more makes a hundred
        EXPECT_EQ(game.form->lblCardsLeft.Caption(), "0");
        EXPECT_EQ(game.Model().Score(), 33 * 10 * 4 * (level == 0 ? 1 : 7));
        ExpectGameOver(game);
    }
}

TEST(WholeGames, LeftAloneAtMasterLevelTheTimerPlaysToTheEnd) {
    GameWindow game;
    game.Play(4);
    game.Lock();
    game.time.Pass(1h);
    EXPECT_EQ(game.form->play, frmGame::Play::Off);
    ExpectGameOver(game);
}

}  // namespace
