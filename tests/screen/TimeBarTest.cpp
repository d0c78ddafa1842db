#include "screen/TimeBar.h"

#include <gtest/gtest.h>

#include <QCoreApplication>

#include "tests/support/PaintWatch.h"

namespace {

struct NoContainer final : ProgBarContainer {
    void PropertyChanged(std::string_view /*key*/) override {}
};

// The smallest rectangle that holds every pixel for which `wanted` says so.
template <class Wanted>
QRect Bounds(const QImage& image, Wanted wanted) {
    QRect bounds;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (wanted(image.pixel(x, y))) bounds |= QRect(x, y, 1, 1);
    return bounds;
}

QRect Bounds(const QImage& image, QRgb colour) {
    return Bounds(image, [colour](QRgb pixel) { return pixel == colour; });
}

}  // namespace

TEST(TimeBar, ATickPaintsTheRowsItFills) {
    TimeBar bar(nullptr, {"bar", {0, 0, 20 * kTwipsPerPixel, 200 * kTwipsPerPixel}, {}}, TimeBarDesign());
    bar.show();
    QCoreApplication::processEvents();
    PaintWatch watch(bar);
    const auto paintedAt = [&](int value) {
        watch.painted = {};
        bar.Value(value);
        QCoreApplication::processEvents();
        return watch.painted.boundingRect();
    };
    const auto filled = [&] { return Bounds(bar.grab().toImage(), 0xFFE0E0E0); };
    const QRect first = paintedAt(30);
    EXPECT_EQ(first, filled());
    const int reached = filled().bottom();
    EXPECT_NEAR(reached, 60, 2);
    const QRect tick = paintedAt(33);
    EXPECT_EQ(tick, filled().adjusted(0, reached + 1, 0, 0));
    EXPECT_NEAR(tick.height(), 6, 1);
    EXPECT_TRUE(paintedAt(33).isEmpty());
    EXPECT_TRUE(tick.contains(paintedAt(30)));
}

TEST(BarSurface, PrintsTheCaptionInsideTheBorder) {
    for (const int scale : {1, 2}) {
        BarSurface surface;
        surface.Resize(QSize(120, 40) * scale, scale);
        NoContainer container;
        ProgBar bar(surface, container);
        bar.UserControl_InitProperties();
        bar.BorderStyle(1);
        bar.BackColour(0x00FFFF);
        bar.BarStartColour(0x00FF00);
        bar.FontColour(0x0000FF);
        bar.Percent(50);
        bar.ShowPercent(true);
        const QRect inside = QRect(QPoint(0, 0), surface.Pixels().size()).adjusted(1, 1, -1, -1);
        EXPECT_EQ(Bounds(surface.Pixels(), 0xFF000000), inside.adjusted(-1, -1, 1, 1));
        EXPECT_EQ(Bounds(surface.Pixels(), 0xFFFFFF00).right(), inside.right());
        EXPECT_EQ(Bounds(surface.Pixels(), 0xFF00FF00).left(), inside.left());
        const QRect ink = Bounds(surface.Pixels(), [](QRgb pixel) {
            return pixel != 0xFF000000 && pixel != 0xFF00FF00 && pixel != 0xFFFFFF00;
        });
        EXPECT_LE((ink.center() - inside.center()).manhattanLength(), 4 * scale);
        EXPECT_GE(ink.width(), 15 * scale);
        EXPECT_LE(ink.height(), 12 * scale);
    }
}
