#include "screen/TimeBar.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QPainter>

#include "tests/support/PaintWatch.h"

TEST(TimeBar, ATickPaintsTheRowsItFills) {
    TimeBar bar(nullptr, {"bar", {0, 0, 20 * kTwipsPerPixel, 100 * kTwipsPerPixel}, {}}, TimeBarDesign());
    bar.show();
    QCoreApplication::processEvents();
    PaintWatch watch(bar);
    const auto painted = [&](int value, Colour back) {
        watch.painted = {}, bar.Bar().BackColour(back), bar.Value(value);
        QCoreApplication::processEvents();
        return watch.painted.boundingRect();
    };
    // The row before the fill line is left as it was.
    EXPECT_EQ(painted(30, 0x404040), QRect(0, 0, 20, 29));
    EXPECT_EQ(painted(31, 0x404040), QRect(0, 29, 20, 1));
    EXPECT_EQ(bar.grab().toImage().pixel(19, 29), 0xFFE0E0E0);
    EXPECT_EQ(painted(31, 0x404040), QRect());
    EXPECT_EQ(painted(31, 0), QRect(0, 31, 20, 69));
}

// What is filled stays inside the border; the high byte is no colour.
TEST(BarSurface, FillsInsideItsBorder) {
    BarSurface surface;
    surface.BorderStyle(1), surface.Resize(QSize(60, 40), 1);
    QImage expected(60, 40, QImage::Format_RGB32);
    expected.fill(Qt::black);
    QPainter(&expected).fillRect(QRect(1, 1, 58, 38), QColor(0x12, 0x34, 0x56));
    surface.FillRect({-5, -5, 500, 500}, 0x7F563412);
    EXPECT_EQ(surface.Pixels(), expected);
}
