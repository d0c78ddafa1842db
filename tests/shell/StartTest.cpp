#include <gtest/gtest.h>

#include <QTest>
#include <set>

#include "shell/ClockRandom.h"
#include "shell/frmIcon.h"
#include "shell/mdlFontSize.h"

namespace {

TEST(SmallFonts, SixteenPixelsPassAndMoreDoNot) {
    using mdlFontSize::CheckSmallFonts;
    EXPECT_TRUE(CheckSmallFonts(std::nullopt));  // a display that cannot be asked
    EXPECT_TRUE(CheckSmallFonts(12));
    EXPECT_TRUE(CheckSmallFonts(16));
    EXPECT_FALSE(CheckSmallFonts(17));
    EXPECT_FALSE(CheckSmallFonts(20));
    EXPECT_EQ(mdlFontSize::SystemFontHeight(), 16);  // the test's own display, at 96 dots per inch
}

TEST(Notice, IsClosedByItsButtonEscapeAndCloseBox) {
    const std::pair<const char*, std::function<void(frmIcon&)>> ways[] = {
        {"button", [](frmIcon& notice) { QTest::mouseClick(&notice.Command1, Qt::LeftButton); }},
        {"Escape", [](frmIcon& notice) { QTest::keyClick(&notice, Qt::Key_Escape); }},
        {"close box", [](frmIcon& notice) { notice.close(); }},
    };
    for (const auto& [what, close] : ways) {
        frmIcon notice;
        notice.show();
        close(notice);
        EXPECT_FALSE(notice.isVisible()) << what;
    }
}

TEST(ClockRandom, NeverRepeatsASequence) {
    ClockRandom random;
    std::set<std::vector<std::int16_t>> sequences;
    for (int i = 0; i < 2000; ++i) {
        random.Reseed();
        std::vector<std::int16_t> sequence(8);
        for (std::int16_t& number : sequence) number = random.Below(1000);
        EXPECT_TRUE(sequences.insert(sequence).second);
    }
}

TEST(ClockRandom, DrawsEachNumberEquallyOftenFirstThingAfterReseeding) {
    ClockRandom random;
    std::array<int, 39> count{};
    for (int i = 0; i < 39 * 1000; ++i) {
        random.Reseed();
        ++count.at(static_cast<std::size_t>(random.Below(39)));
    }
    for (const int times : count) EXPECT_NEAR(times, 1000, 200);  // over six standard deviations
}

}  // namespace
