#include <gtest/gtest.h>

#include <QTest>

#include "shell/frmIcon.h"
#include "shell/mdlFontSize.h"

TEST(Start, WithLargeFontsShowsANoticeThatIsClosedInAnyUsualWay) {
    using mdlFontSize::CheckSmallFonts;
    EXPECT_TRUE(CheckSmallFonts() && CheckSmallFonts({}) && CheckSmallFonts(16) && !CheckSmallFonts(17));
    frmIcon notice;
    for (const int key : {int(Qt::Key_Escape), int(Qt::Key_Return), 0}) {
        notice.show();
        key ? QTest::keyClick(&notice, Qt::Key(key)) : QTest::mouseClick(&notice.Command1, Qt::LeftButton);
        EXPECT_FALSE(notice.isVisible()) << key;
    }
}
