#include <gtest/gtest.h>

#include <QTest>
#include <set>

#include "shell/ClockRandom.h"
#include "shell/WindowShape.h"
#include "shell/frmIcon.h"
#include "shell/mdlFontSize.h"

namespace {

TEST(Start, WithLargeFontsShowsANoticeThatIsClosedInAnyUsualWay) {
    using mdlFontSize::CheckSmallFonts;
    EXPECT_TRUE(CheckSmallFonts() && CheckSmallFonts(std::nullopt) && CheckSmallFonts(16) &&
                !CheckSmallFonts(17));
    for (const int key : {int(Qt::Key_Escape), int(Qt::Key_Return), 0}) {
        frmIcon notice;
        notice.show();
        key ? QTest::keyClick(&notice, Qt::Key(key)) : QTest::mouseClick(&notice.Command1, Qt::LeftButton);
        EXPECT_FALSE(notice.isVisible()) << key;
    }
}

TEST(Start, TheWindowFollowsTheMouseFromThePressToTheRelease) {
    QWidget window;
    window.move(100, 100);
    WindowMove move;
    const auto to = [&](QPoint global) { return move.Move(window, global), window.pos(); };
    EXPECT_EQ(to({150, 150}), QPoint(100, 100));
    move.Press(window, {110, 120}, true);
    EXPECT_EQ(to({150, 150}), QPoint(140, 130));
    EXPECT_EQ(to({160, 150}), QPoint(150, 130));
    move.Release();
    EXPECT_EQ(to({0, 0}), QPoint(150, 130));
}

TEST(Start, EachSequenceOfRandomNumbersIsAnotherAndEachNumberAsLikely) {
    ClockRandom random;
    std::set<std::uint64_t> sequences;
    std::array<int, 39> times{};
    for (int i = 0; i < 39'000; ++i) {
        random.Reseed();
        std::uint64_t sequence = 0;
        for (int place = 0; place < 11; ++place) sequence = sequence * 39 + std::uint64_t(random.Below(39));
        sequences.insert(sequence);
        ++times.at(sequence % 39);
    }
    EXPECT_EQ(sequences.size(), 39'000);
    for (const int each : times) EXPECT_NEAR(each, 1000, 200);  // over six standard deviations
}

}  // namespace
