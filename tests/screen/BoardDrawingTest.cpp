// What the board shows after whole sequences: the pictures of the cells, and what is kept aside under the
// active card.

#include <gtest/gtest.h>

#include "tests/support/GameWindow.h"

namespace {

using namespace std::chrono_literals;

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
        if (active) {
            EXPECT_EQ(game.form->picTemp.Picture(), locked);
        }
    }
    EXPECT_EQ(game.form->picPreview.Picture(), game.Card(model.NextCard()));
}

// Kinds that share nothing with one another where the tests put them: no line ever clears.
constexpr std::int16_t kA = 0, kB = 16, kC = 32, kEraser = 37;

TEST(BoardDrawing, FollowsTheModelThroughSequences) {
    struct Case {
        const char* what;
        std::initializer_list<std::int16_t> kinds;
        std::function<void(GameWindow&)> play;
    };
    const Case cases[] = {
        {"a new game", {kA, kB}, [](GameWindow&) {}},
        {"moves over free cells",
         {kA, kB},
         [](GameWindow& g) { g.Key(kKeyUp), g.Key(kKeyRight), g.MoveTo(3); }},
        {"lock in the start cell", {kA, kB, kC}, [](GameWindow& g) { g.Lock(); }},
        {"lock elsewhere", {kA, kB, kC}, [](GameWindow& g) { g.LockAt(5); }},
        {"over a locked card and back",
         {kA, kB, kC},
         [](GameWindow& g) { g.LockAt(13), g.Key(kKeyRight), g.Key(kKeyLeft); }},
        {"on a locked card", {kA, kB, kC}, [](GameWindow& g) { g.LockAt(13), g.Key(kKeyRight); }},
        {"leaving a locked start cell", {kA, kB, kC}, [](GameWindow& g) { g.Lock(), g.Key(kKeyUp); }},
        {"space over a locked card", {kA, kB, kC}, [](GameWindow& g) { g.Lock(), g.Lock(); }},
        {"eraser over a card", {kA, kEraser, kB, kC}, [](GameWindow& g) { g.LockAt(5), g.LockAt(5); }},
        {"eraser over the start cell's card",
         {kA, kEraser, kB, kC},
         [](GameWindow& g) { g.Lock(), g.Lock(); }},
        {"eraser elsewhere, start cell taken",
         {kA, kB, kEraser, kC, kA},
         [](GameWindow& g) { g.Lock(), g.LockAt(6), g.LockAt(6); }},
        {"eraser over nothing", {kEraser, kB, kC}, [](GameWindow& g) { g.LockAt(9); }},
        {"timed lock, active card over a card",
         {kA, kB, kC, kB},
         [](GameWindow& g) { g.LockAt(5), g.MoveTo(5), g.random.script.push_front(9), g.time.Pass(2157ms); }},
        {"timed lock in the start cell",
         {kA, kB, kC, kB},
         [](GameWindow& g) { g.LockAt(5), g.random.script.push_front(12), g.time.Pass(2157ms); }},
        {"timed eraser",
         {kA, kEraser, kC, kB},
         [](GameWindow& g) { g.Lock(), g.random.script.push_front(1), g.time.Pass(2157ms); }},
        {"pause and resume over a card",
         {kA, kB, kC},
         [](GameWindow& g) { g.LockAt(5), g.MoveTo(5), g.RightClick(), g.RightClick(); }},
        {"pause and resume on a free cell",
         {kA, kB, kC},
         [](GameWindow& g) { g.LockAt(5), g.RightClick(), g.RightClick(), g.Key(kKeyUp); }},
        {"a row through the start cell",
         {kA, kA, kA, kA, kB, kC},
         [](GameWindow& g) { g.LockAt(13), g.LockAt(14), g.LockAt(15), g.LockAt(12); }},
        {"a row away from it, start cell taken",
         {kB, kA, kA, kA, kA, kC, kC},
         [](GameWindow& g) { g.LockAt(12), g.LockAt(4), g.LockAt(5), g.LockAt(6), g.LockAt(7); }},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        GameWindow game;
        game.PlayKinds(c.kinds, 4);
        c.play(game);
        ExpectBoardAsModel(game);
    }
}

TEST(BoardDrawing, FrameShadeAndBlackAreCombinedByAnd) {
    GameWindow game;
    game.PlayKinds({kA, kB, kC});
    game.LockAt(5);
    game.MoveTo(5);
    const QImage shown = game.Cell(5).Contents().Render(1);
    const QRgb card = game.Card(kB).At(1).pixel(30, 30), face = ToQColor(kButtonFace).rgb();
    EXPECT_EQ(shown.pixel(30, 30), card & face);
    EXPECT_EQ(shown.pixel(1, 30), card & face & 0xFFFF0000);  // the frame takes pixels 1..3 from each edge
    EXPECT_EQ(shown.pixel(3, 3), card & face & 0xFFFF0000);
    EXPECT_EQ(shown.pixel(59, 30), card & face & 0xFFFF0000);
    EXPECT_EQ(shown.pixel(0, 30), card & face);
    EXPECT_EQ(shown.pixel(4, 4), card & face);
    EXPECT_EQ(shown.pixel(56, 56), card & face);
}

TEST(BoardDrawing, TheCoverTurnsEachCellBlackForFiftyMilliseconds) {
    GameWindow game;
    game.PlayKinds({kA, kB, kC});
    game.Lock();
    const auto before = game.time.Now();
    game.RightClick();
    EXPECT_EQ(game.time.Now() - before, 800ms);
    for (int cell = 0; cell < 16; ++cell) EXPECT_EQ(game.Cell(cell).Picture(), game.Card(36));
}

}  // namespace
