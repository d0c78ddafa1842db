#include <gtest/gtest.h>

#include <QTest>

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

}  // namespace
