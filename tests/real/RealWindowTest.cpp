// Whole games in the real window, on a display of the test's own.

#include <gtest/gtest.h>

#include <QElapsedTimer>

#include "model/CardInfo.h"
#include "tests/real/Player.h"
#include "tests/real/Strategy.h"

namespace {

using namespace std::chrono_literals;

class RealWindow_ : public testing::TestWithParam<int> {
protected:
    void SetUp() override { ASSERT_TRUE(player.Window().Found()); }

    void ClickAndSee(const QRect& control) {
        const QImage before = player.Window().Look();
        player.Click(control);
        ASSERT_TRUE(player.AwaitChange(before));
    }
    void StartGame() {
        ClickAndSee(Spot::kPlay);
        ASSERT_TRUE(player.AwaitTurn());
    }
    // Locks the active card by the space key or a click, and waits for the next turn.
    void LockAt(int cell, bool byMouse) {
        if (!byMouse || !player.MoveByMouse(cell)) player.MoveByKeys(cell);
        const QImage before = player.Window().Look();
        if (byMouse)
            player.ClickCell(cell);
        else
            player.Window().Key("space");
        ASSERT_TRUE(player.AwaitChange(before));
        ASSERT_TRUE(player.AwaitTurn());
    }

    Player player{GetParam()};
};

TEST_P(RealWindow_, IsPlayedByKeysAndMouseThroughPauseAndHelp) {
    player.Photograph("help");
    StartGame();
    EXPECT_EQ(player.Window().OnScreen().size(), QSize(399, 411) * GetParam());
    player.MoveByKeys(5);
    player.Photograph("first-card");
    SeenBoard board = player.Board();
    const int first = board[5];
    EXPECT_EQ(std::count(board.begin(), board.end(), Player::kNothing), 15);
    LockAt(5, false);
    EXPECT_EQ(player.CardAt(5), first > kLastOrdinaryKind ? Player::kNothing : first);
    LockAt(10, true);
    LockAt(3, true);
    board = player.Board();
    player.Photograph("playing");

    player.ClickCell(3, 3);  // the mouse rests there already
    ASSERT_TRUE(player.Window().Await([&] { return player.IsCovered(); }));
    player.Photograph("paused");
    player.Window().Key("p");
    ASSERT_TRUE(player.Window().Await([&] { return player.Board() == board; }));

    ClickAndSee(Spot::kHelp);
    StartGame();
    EXPECT_EQ(player.Leave(), 0);
}

TEST_P(RealWindow_, CoversCellByCellBeforeThePlayersEyes) {
    StartGame();
    int blackSeen = 0, covered = 0;
    player.Window().Key("p");
    // Looks at every change of the screen: each cell is black once, on its own, before it is covered.
    player.Window().Await([&] {
        for (int cell = 0; cell < 16; ++cell)
            if (player.IsBlack(cell)) blackSeen |= 1 << cell;
        if (blackSeen == 0x3FF) player.Photograph("covering");
        return player.IsCovered() && ++covered;
    });
    EXPECT_GE(std::popcount(static_cast<unsigned>(blackSeen)), 14);  // on a busy machine a look may come late
    EXPECT_EQ(covered, 1);
}

TEST_P(RealWindow_, IsLeftInTheMiddleOfACover) {
    StartGame();
    const QImage before = player.Window().Look();
    player.Window().Key("p");
    ASSERT_TRUE(player.AwaitChange(before));
    EXPECT_FALSE(player.IsCovered());
    EXPECT_EQ(player.Leave(), 0);
}

TEST_P(RealWindow_, IsMovedByItsBackgroundWithAnyButton) {
    if (GetParam() != 1) return;
    RealWindow& window = player.Window();
    for (const unsigned button : {1u, 2u, 3u}) {
        const QRect before = window.Place();
        window.MoveMouse(Spot::kBackground);
        window.Press(button);
        const auto hasMoved = [&] { return window.Place() != before; };
        // The window manager takes over some time after the first motion, and then wants to see another.
        for (int step = 1; step < 100 && !hasMoved(); ++step) {
            window.MoveMouse(Spot::kBackground + QPoint(2 * step, step));
            window.Await(hasMoved, 50ms);
        }
        EXPECT_TRUE(hasMoved()) << "button " << button;
        window.Release(button);
        window.MoveTo(before.topLeft());
    }
}

TEST_P(RealWindow_, AtMasterLevelTheTimerLocksAndFillsTheBoardToTheEnd) {
    ClickAndSee(Spot::kMenu);
    ClickAndSee(Spot::Level(4));
    player.Photograph("levels");
    StartGame();
    LockAt(6, false);
    player.Photograph("master");
    const QImage before = player.Window().Look();
    ASSERT_TRUE(player.AwaitChange(before));
    if (GetParam() != 1) return;
    // Hurries the end by locking at random, as fast as turns come.
    for (int turn = 0; turn < 3000 && !player.IsCovered(); ++turn) {
        player.MoveByKeys(FirstFreeCell(player.Board()));
        player.Window().Key("space");
        player.AwaitTurn();
    }
    EXPECT_TRUE(player.IsCovered());
    player.Photograph("full-board");
}

TEST_P(RealWindow_, ACheapPlayerUsesUpTheCards) {
    if (GetParam() != 1) return;
    StartGame();
    for (int turns = 0; turns < 3000 && !player.IsCovered(); ++turns) {
        SeenBoard board = player.Board();
        const int kind = board[12];
        ASSERT_GE(kind, 0);
        player.MoveByKeys(8);  // the active card hides what lies under it
        board[12] = player.CardAt(12);
        LockAt(CheapCell(board, kind), turns % 2 == 0);
    }
    EXPECT_TRUE(player.IsCovered());
    EXPECT_TRUE(player.SawFlash());
    player.Photograph("no-cards");
}

INSTANTIATE_TEST_SUITE_P(Scales, RealWindow_, testing::Values(1, 2));

}  // namespace
