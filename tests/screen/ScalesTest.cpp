#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QScreen>
#include <QWindow>

#include "tests/support/GameWindow.h"

// On screens of every usual scale and one that no picture was drawn for.
TEST(Scales, AMovedWindowLooksLikeOneThatOpensThere) {
    GameWindow game;
    game.PlayKinds({5, 7}, 1), game.LockAt(5), game.MoveTo(10);
    const QList<QScreen*> screens = QGuiApplication::screens();
    const auto on = [&game](QScreen* screen) {
        game.form->move(screen->geometry().topLeft() + QPoint(50, 50));
        game.form->show(), game.form->windowHandle()->setScreen(screen);
        QCoreApplication::processEvents();
        return game.form->grab().toImage();
    };
    for (QScreen* screen : screens) {
        const QImage opened = on(screen);
        EXPECT_NEAR(opened.devicePixelRatio(), screen->devicePixelRatio(), 1e-4);
        on(screens[screen == screens[0] ? 3 : 0]);
        EXPECT_EQ(on(screen), opened) << screen->devicePixelRatio();
    }
}
