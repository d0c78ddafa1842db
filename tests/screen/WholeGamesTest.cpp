// Whole games on virtual time: what the board shows after every step, and how a game ends.

#include <gtest/gtest.h>

#include "tests/support/GameWindow.h"

using namespace std::chrono_literals;

namespace {

// Everything a player sees follows from the model: each cell its locked card, the active cell the active card
// with the frame (and the shade over a locked card), and aside what lies under it.
void ExpectBoardAsModel(GameWindow& game) {
    const clsCard& model = game.Model();
    for (std::int16_t cell = 0; cell < kCells; ++cell) {
        SCOPED_TRACE(testing::Message() << "cell " << cell);
        const CardInfo& card = model.CardAt(cell);
        const Picture locked = card.Quantity == kNoCard ? Picture() : game.Card(card.Number);
        const bool active = cell == model.PosCurrentCard();
        const std::size_t drawings = active ? (card.Quantity == kNoCard ? 1 : 2) : 0;
        EXPECT_EQ(game.Cell(cell).Picture(), active ? game.Card(model.CurrentCard()) : locked);
        EXPECT_EQ(game.Cell(cell).Contents().drawings.size(), drawings);
        EXPECT_TRUE(!active || game.form->picTemp.Picture() == locked);
    }
    EXPECT_EQ(game.form->picPreview.Picture(), game.Card(model.NextCard()));
}

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

// Something a player may do, or the timer. Returns what.
std::string Step(GameWindow& game, std::mt19937& choice) {
    const int cell = choice() % 16, key = kKeyLeft + cell % 4;
    const auto what = choice() % 100;
    if (what < 1) return game.Play(4), "a new game";
    if (what < 4) return game.RightClick(), game.RightClick(), "a pause";
    if (what < 16) return game.time.Pass(2200ms), "a lock by the timer";
    if (what < 36) return game.MoveTo(cell), "the mouse to " + std::to_string(cell);
    if (what < 56) return game.LockAt(cell), "a lock at " + std::to_string(cell);
    return game.Key(key), "key " + std::to_string(key);
}

TEST(WholeGames, TheBoardShowsWhatTheModelSaysToTheEnd) {
    for (unsigned seed = 0; seed < 5; ++seed) {
        GameWindow game;
        std::mt19937 choice(seed);
        game.random.rest.seed(seed);
        game.Play(4);
        std::string step = "a new game";
        while (game.form->play == frmGame::Play::On) {
            ExpectBoardAsModel(game);
            ASSERT_FALSE(HasFailure()) << "seed " << seed << ", after " << step;
            step = Step(game, choice);
        }
        ExpectGameOver(game);
    }
}

TEST(WholeGames, TheLastCardEndsTheGameWhetherTimeCountsOrNot) {
    for (const int level : {0, 4}) {
        GameWindow game;
        game.PlayKinds({0, 16, 32}, level);
        game.Model().CardsUsed(98);
        game.LockAt(4);
        EXPECT_EQ(game.form->lblCardsLeft.Caption(), "1");
        game.LockAt(9);
        EXPECT_EQ(game.form->lblCardsLeft.Caption(), "0");
        ExpectGameOver(game);
    }
}

TEST(WholeGames, FrameAndShadeAreCombinedByAnd) {
    GameWindow game;
    game.PlayKinds({0, 16, 32});
    game.LockAt(5);
    game.MoveTo(5);
    const QImage shown = game.Cell(5).Contents().Render(1);
    const QRgb shaded = game.Card(16).At(1).pixel(30, 30) & ToQColor(kButtonFace).rgb();
    for (const QPoint inFrame : {QPoint(1, 30), QPoint(3, 3), QPoint(59, 30)})  // pixels 1..3 from each edge
        EXPECT_EQ(shown.pixel(inFrame), shaded & 0xFFFF0000);
    for (const QPoint beside : {QPoint(0, 30), QPoint(4, 4), QPoint(30, 30), QPoint(56, 56)})
        EXPECT_EQ(shown.pixel(beside), shaded);
}

}  // namespace
