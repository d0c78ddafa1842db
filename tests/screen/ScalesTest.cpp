// The window on screens of every usual scale and one that no picture was drawn for, and moved between them.

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QScreen>
#include <QWindow>

#include "tests/support/GameWindow.h"

namespace {

class Scales : public testing::TestWithParam<int> {
protected:
    Scales() {
        game.PlayKinds({5, 7}, 1);
        game.LockAt(5);
        game.MoveTo(10);
    }
    // The window as it is after a move to screen `number`.
    QImage On(int number) {
        QScreen* screen = QGuiApplication::screens().at(number);
        game.form->move(screen->geometry().topLeft() + QPoint(50, 50));
        game.form->show();
        game.form->windowHandle()->setScreen(screen);
        QCoreApplication::processEvents();
        EXPECT_NEAR(game.form->devicePixelRatioF(), screen->devicePixelRatio(), 1e-4);
        return game.form->grab().toImage();
    }

    GameWindow game;
};

TEST_P(Scales, AMovedWindowLooksLikeOneThatOpensThere) {
    const QImage opened = On(GetParam());
    EXPECT_NE(On(GetParam() == 0 ? 3 : 0).size(), opened.size());
    EXPECT_EQ(On(GetParam()), opened);
}

// Sharp: red is nothing but red, and nowhere outside the cell.
TEST_P(Scales, TheFrameOfTheActiveCardIsWholeAndInsideItsCell) {
    const QImage image = On(GetParam());
    const qreal scale = image.devicePixelRatio();
    const PictureBox& cell = game.Cell(10);
    const QRectF place =
        QRectF(cell.mapTo(game.form.get(), QPoint(0, 0)) * scale, QSizeF(cell.size()) * scale);
    QRect red;
    for (int y = qFloor(place.top()) - 4; y < place.bottom() + 4; ++y)
        for (int x = qFloor(place.left()) - 4; x < place.right() + 4; ++x)
            if (const QColor at = image.pixelColor(x, y); at.red() > 200 && at.green() + at.blue() == 0)
                red |= QRect(x, y, 1, 1);
    EXPECT_TRUE(place.contains(red)) << scale;
    EXPECT_NEAR(red.width(), 59 * scale, 1);
    EXPECT_NEAR(red.height(), 59 * scale, 1);
    for (int x = red.left(); x <= red.right(); ++x)
        EXPECT_EQ(image.pixelColor(x, red.top()).green() + image.pixelColor(x, red.top()).blue(), 0) << x;
}

INSTANTIATE_TEST_SUITE_P(Screens, Scales, testing::Range(0, 7));

}  // namespace
