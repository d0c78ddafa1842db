#include <gtest/gtest.h>

#include <QTest>
#include <set>

#include "shell/ClockRandom.h"
#include "shell/WindowShape.h"
#include "shell/frmIcon.h"
#include "shell/mdlFontSize.h"

namespace {

TEST(SmallFonts, SixteenPixelsPassAndMoreDoNot) {
    EXPECT_TRUE(mdlFontSize::CheckSmallFonts(std::nullopt));  // a display that cannot be asked
    EXPECT_TRUE(mdlFontSize::CheckSmallFonts(16));
    EXPECT_FALSE(mdlFontSize::CheckSmallFonts(17));
    EXPECT_EQ(mdlFontSize::SystemFontHeight(), 16);  // the test's own display, at 96 dots per inch
}

TEST(Notice, IsClosedByItsButtonEscapeEnterAndCloseBox) {
    for (const int way : {0, 1, 2, 3}) {
        frmIcon notice;
        notice.show();
        if (way == 0) notice.close();
        if (way == 1) QTest::mouseClick(&notice.Command1, Qt::LeftButton);
        if (way > 1) QTest::keyClick(&notice, way == 2 ? Qt::Key_Escape : Qt::Key_Return);
        EXPECT_FALSE(notice.isVisible()) << way;
    }
}

TEST(WindowMove, FollowsTheMouseFromTheFirstMotionToTheRelease) {
    for (const bool left : {true, false}) {
        QWidget window;
        window.move(100, 100);
        window.show();
        WindowMove move;
        const auto to = [&](QPoint global) { return move.Move(window, global), window.pos(); };
        EXPECT_EQ(to({150, 150}), QPoint(100, 100));
        move.Press(window, {110, 120}, left);
        EXPECT_EQ(to({150, 150}), QPoint(140, 130));
        EXPECT_EQ(to({160, 150}), QPoint(150, 130));
        move.Release();
        EXPECT_EQ(to({0, 0}), QPoint(150, 130));
    }
}

TEST(ClockRandom, ReseededGivesAnotherSequenceEachTimeAndEachNumberAlike) {
    ClockRandom random;
    std::set<std::array<std::int16_t, 12>> sequences;
    std::array<int, 39> firsts{};
    for (int i = 0; i < 39'000; ++i) {
        random.Reseed();
        std::array<std::int16_t, 12> sequence;
        for (std::int16_t& number : sequence) number = random.Below(39);
        EXPECT_TRUE(sequences.insert(sequence).second);
        ++firsts.at(static_cast<std::size_t>(sequence[0]));
    }
    for (const int times : firsts) EXPECT_NEAR(times, 1000, 200);  // over six standard deviations
}

}  // namespace
