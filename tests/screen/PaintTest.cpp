// The window on screens of every usual scale and one that no picture was drawn for, and what of the time bar
// is painted anew.

#include <QScreen>
#include <QWindow>

#include "tests/support/GameWindow.h"

TEST(Paint, AMovedWindowLooksLikeOneThatOpensThere) {
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

struct PaintWatch : QObject {
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint) painted = static_cast<QPaintEvent*>(event)->rect();
        return false;
    }
    QRect painted;
};

TEST(Paint, OfTheTimeBarCoversTheRowsThatATickFills) {
    TimeBar bar(nullptr, {"bar", {0, 0, 20 * kTwipsPerPixel, 100 * kTwipsPerPixel}, {}}, TimeBarDesign());
    PaintWatch watch;
    bar.installEventFilter(&watch);
    bar.show();
    QCoreApplication::processEvents();
    // The row before the fill line is left as it was.
    for (const auto& [value, back, rows] : {std::tuple(30, 0x404040, QRect(0, 0, 20, 29)),
                                            {31, 0x404040, {0, 29, 20, 1}},
                                            {31, 0x404040, {}},
                                            {31, 0, {0, 31, 20, 69}}}) {
        watch.painted = {}, bar.Bar().BackColour(back), bar.Value(value);
        QCoreApplication::processEvents();
        EXPECT_EQ(watch.painted, rows);
        EXPECT_EQ(bar.grab().toImage().pixel(19, value - 2), 0xFFE0E0E0);
    }
}
