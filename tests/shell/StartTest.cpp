#include <gtest/gtest.h>

#include <QTest>
#include <set>

#include "shell/ClockRandom.h"
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

TEST(Start, EachSequenceOfRandomNumbersIsAnotherAndEachNumberAsLikely) {
    ClockRandom random;
    std::set<std::array<std::int16_t, 8>> sequences;
    std::array<int, 39> times{};
    for (int i = 0; i < 5'000; ++i) {
        random.Reseed();
        std::array<std::int16_t, 8> sequence{};
        for (std::int16_t& number : sequence) ++times.at(std::size_t(number = random.Below(39)));
        sequences.insert(sequence);
    }
    EXPECT_EQ(sequences.size(), 5'000);
    for (const int each : times) EXPECT_NEAR(each, 40'000 / 39, 200);  // over six standard deviations
}

}  // namespace
