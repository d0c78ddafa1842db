// A whole session in the real window without a mouse, the mark of the keyboard seen at every step.

#include <gtest/gtest.h>

#include "model/CardInfo.h"
#include "platform/StringStore.h"
#include "tests/real/Player.h"
#include "tests/real/Strategy.h"

namespace {

using namespace Spot;

class Keyboard : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(player.Window().Found());
        player.Window().Focus();
    }
    bool IsMarked(const QRect& control) const {
        return player.Window().Look({control.center().x(), control.top() - 2, 1, 1}).pixel(0, 0) ==
               0xFFF4C84E;
    }
    // Presses `key` and waits until the mark is around `control`.
    void Go(const char* key, const QRect& control) {
        player.Window().Key(key);
        EXPECT_TRUE(player.Window().Await([&] { return IsMarked(control); }))
            << key << " to " << control.x() << ", " << control.y();
    }
    void PressAndSee(const char* key) {
        const QImage before = player.Window().Look();
        player.Window().Key(key);
        ASSERT_TRUE(player.AwaitChange(before)) << key;
    }
    void LockIn(int cell) {
        player.MoveByKeys(cell);
        PressAndSee("space");
        ASSERT_TRUE(player.AwaitTurn());
    }
    std::optional<QString> BestName() const {
        const QString folder = player.Display().Environment().value("XDG_CONFIG_HOME");
        return StringStore(folder + "/Tesselor/store.sqlite").String("Software\\Tesselor\\Name", "0");
    }

    Player player{1};
};

TEST_F(Keyboard, ASessionFromTheFirstKeyToTheLast) {
    Go("Tab", kMenu);
    player.Photograph("keyboard-mark");
    PressAndSee("Return");
    Go("Tab", kScore), Go("Tab", kHelp), Go("Tab", Level(0));
    Go("Down", Level(1)), Go("Down", Level(2)), PressAndSee("space");
    Go("Up", Level(1)), Go("Up", Level(0)), PressAndSee("Return");
    Go("Tab", Level(1)), Go("Tab", Level(2)), Go("Tab", Level(3)), Go("Tab", Level(4)), Go("Tab", Slot(0));
    Go("Right", Slot(1)), PressAndSee("Return");
    Go("Left", Slot(0)), PressAndSee("Return");
    Go("Right", Slot(1)), Go("Right", Slot(2)), Go("Right", kHelp);
    Go("Down", kScore), Go("Down", kMenu), Go("Down", kPlay);
    PressAndSee("Return");
    ASSERT_TRUE(player.AwaitTurn());
    EXPECT_FALSE(IsMarked(kPlay));

    // The board's keys are the board's, even while the mark is elsewhere.
    LockIn(5);
    Go("Tab", kPlay);
    const int kind = player.CardAt(12);
    LockIn(6);
    EXPECT_EQ(player.CardAt(6), kind > kLastOrdinaryKind ? Player::kNothing : kind);
    player.Window().Key("p");
    ASSERT_TRUE(player.Window().Await([&] { return player.IsCovered(); }));
    player.Window().Key("p");
    ASSERT_TRUE(player.AwaitTurn());
    player.Window().Key("Return");  // play again
    ASSERT_TRUE(player.Window().Await([&] { return player.CardAt(5) == Player::kNothing; }));
    ASSERT_TRUE(player.AwaitTurn());

    for (int turn = 0; !player.IsCovered(); ++turn) {
        ASSERT_LT(turn, 1000);
        SeenBoard board = player.Board();
        const int kind = board[12];
        player.MoveByKeys(8);  // the active card hides what lies under it
        board[12] = player.CardAt(12);
        ASSERT_NO_FATAL_FAILURE(LockIn(player.SawFlash() ? FirstFreeCell(board) : CheapCell(board, kind)));
    }
    for (const char* key : {"z", "o", "e", "Return"}) player.Window().Key(key);
    ASSERT_TRUE(player.Window().Await([&] { return BestName() == "zoe"; }));
    player.Photograph("keyboard-scores");

    Go("Tab", kMenu), Go("Up", kScore), Go("Up", kHelp), PressAndSee("Return");
    Go("Left", kMore), Go("Down", kDemo), Go("Left", kMoreButton);
    player.Window().Key("Return");
    RealWindow rules(player.Display().Name(), "Tesselor", &player.Window());
    ASSERT_TRUE(rules.Found());
    ASSERT_TRUE(rules.Await([&] { return !IsMarked(kMoreButton); }));  // the keyboard is the rules'
    rules.Key("Escape");
    ASSERT_TRUE(rules.Await([&] { return IsMarked(kMoreButton); }));
    Go("Right", kDemo), Go("Right", kPlay), Go("Up", kMenu), Go("Up", kScore), Go("Up", kHelp);
    Go("Up", kMinimise), Go("Right", kExit);
    player.Window().Key("Return");
    EXPECT_EQ(player.AwaitEnd(), 0);
}

}  // namespace
