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
