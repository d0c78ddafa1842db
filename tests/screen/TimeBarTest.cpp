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

// What is filled stays inside the border, and a text as high and wide as the surface says is put there.
TEST(BarSurface, FillsAndPrintsInsideItsBorder) {
    BarSurface surface;
    surface.BorderStyle(1), surface.Resize(QSize(60, 40), 1);
    QImage expected(60, 40, QImage::Format_RGB32);
    const auto fill = [&](QRect area, QRgb colour) { QPainter(&expected).fillRect(area, QColor(colour)); };
    fill({0, 0, 60, 40}, 0), fill({1, 1, 58, 38}, 0x563412), fill({4, 5, 4, 30}, 0x010000);
    surface.FillRect({-5, -5, 500, 500}, 0x7F123456);  // the high byte is no colour
    surface.FillRect({3, 4, 7, 34}, 1), surface.FillRect({50, 21, 50, 22}, 1);
    EXPECT_EQ(surface.Pixels(), expected);
    surface.ForeColour(0x0000FF), surface.UserScale(100, 100);
    surface.Print(50 - surface.TextWidth("50%") / 2, 50 - surface.TextHeight("50%") / 2, "50%");
    QRect ink;
    for (int i = 0; i < 60 * 40; ++i)
        if (surface.Pixels().pixelColor(i % 60, i / 60).red() > 0x80) ink |= QRect(i % 60, i / 60, 1, 1);
    EXPECT_LE((ink.center() - QPoint(29, 19)).manhattanLength(), 4);
    EXPECT_GE(ink.width(), 15);
    EXPECT_LE(ink.height(), 12);
    const double height = surface.TextHeight("50%");
    surface.Resize(QSize(60, 40), 2);
    EXPECT_NEAR(surface.TextHeight("50%"), 2 * height, 0.2 * height);
    surface.Resize(QSize(0, 0), 1), surface.UserScale(100, 100);
    EXPECT_EQ(surface.TextWidth("a") + surface.TextHeight("a"), 0);
}
