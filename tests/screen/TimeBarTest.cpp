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
        watch.painted = {};
        bar.Bar().BackColour(back), bar.Value(value);
        QCoreApplication::processEvents();
        return watch.painted.boundingRect();
    };
    // The row before the fill line is left as it was.
    EXPECT_EQ(painted(30, 0x404040), QRect(0, 0, 20, 29));
    EXPECT_EQ(painted(31, 0x404040), QRect(0, 29, 20, 1));
    EXPECT_EQ(bar.grab().toImage().pixel(19, 29), 0xFFE0E0E0);
    EXPECT_EQ(bar.grab().toImage().pixel(19, 30), 0xFF404040);
    EXPECT_EQ(painted(31, 0x404040), QRect());
    EXPECT_EQ(painted(31, 0), QRect(0, 31, 20, 69));
}

TEST(BarSurface, FillsAndPrintsInsideItsBorder) {
    for (const int scale : {1, 2}) {
        BarSurface surface;
        surface.BorderStyle(1);
        surface.Resize(QSize(60, 40) * scale, scale);
        QImage expected(surface.Pixels().size(), QImage::Format_RGB32);
        expected.fill(Qt::black);
        const QRect inside = expected.rect().adjusted(1, 1, -1, -1);
        for (const Rect& area : {Rect{-5, -5, 500, 500}, {3, 4, 7, 4}, {9, -1, 11, 30}, {50, 21, 500, 22}}) {
            surface.FillRect(area, 0x7F123400 + area.bottom % 100);  // the high byte is no colour
            const QRect filled(QPoint(area.left + 1, area.top + 1), QPoint(area.right, area.bottom));
            QPainter(&expected).fillRect(filled & inside, QColor(area.bottom % 100, 0x34, 0x12));
        }
        EXPECT_EQ(surface.Pixels(), expected);
        surface.ForeColour(0x0000FF);
        surface.UserScale(100, 100);
        surface.Print(50 - surface.TextWidth("50%") / 2, 50 - surface.TextHeight("50%") / 2, "50%");
        QRect ink;
        for (int i = 0; i < expected.width() * expected.height(); ++i) {
            const QPoint at(i % expected.width(), i / expected.width());
            if (surface.Pixels().pixelColor(at).red() > 0x80) ink |= QRect(at, QSize(1, 1)) & inside;
        }
        EXPECT_LE((ink.center() - inside.center()).manhattanLength(), 4 * scale);
        EXPECT_GE(ink.width(), 15 * scale);
        EXPECT_LE(ink.height(), 12 * scale);
    }
    BarSurface nothing;
    nothing.Resize(QSize(0, 0), 1);
    nothing.UserScale(100, 100);
    nothing.FillRect({0, 0, 1, 1}, 0);
    EXPECT_EQ(nothing.TextWidth("a") + nothing.TextHeight("a"), 0);
}
