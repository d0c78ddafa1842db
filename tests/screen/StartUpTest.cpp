#include <gtest/gtest.h>

#include <QCoreApplication>

#include "screen/Look.h"
#include "tests/support/GameWindow.h"

TEST(StartUp, LaysTheScreensOverTheBoard) {
    GameWindow game;
    const frmGame& form = *game.form;
    const auto expectPlace = [](const auto& control, std::array<Twips, 4> place) {
        EXPECT_EQ((std::array{control.Left(), control.Top(), control.Width(), control.Height()}), place);
    };
    expectPlace(form.fraScreen[0], {765, 915, 3945, 3945});
    for (const std::size_t i : {1u, 2u, 3u}) expectPlace(form.fraScreen[i], {780, 930, 3915, 3915});
    expectPlace(form.picPreview, {775, 4930, 960, 960});
    expectPlace(form.shpRect, {765, 915, 3925, 3890});
    expectPlace(form.picMat[6], {1980, 990, 960, 960});
    EXPECT_EQ(form.size(), QSize(399, 411));
}

TEST(StartUp, OpensOnHelpAtPracticeLevelWithNothingRunning) {
    GameWindow game;
    frmGame& form = *game.form;
    for (std::size_t i = 0; i < 4; ++i) EXPECT_EQ(form.fraScreen[i].Visible(), i == 2);
    EXPECT_EQ(form.lblCaption[2].ForeColor(), Look::kLitCaption);
    EXPECT_EQ(form.lblHelpText1.Caption(),
              "Line up cards by : color, shape, quantity or series \r\n"
              "1,2,3,4. For high score make multiple combinations");
    EXPECT_EQ(form.lblClass[0].ForeColor(), kRed);
    EXPECT_EQ(form.lblLevelName.Caption() + form.lblLevelBack.Caption(), "practicepractice");
    EXPECT_EQ(form.Shape1.Left(), form.lblClass[0].Left() - 210);
    EXPECT_EQ(form.Shape1.Top(), form.lblClass[0].Top() + 135);
    EXPECT_FALSE(form.shpTime.Visible() || form.prbTime.Visible());
    EXPECT_FALSE(form.Timer1.Enabled() || form.Timer2.Enabled() || form.Timer3.Enabled());
}

// Every control inside the shaped window lies wholly inside its holder, and no two hot spots overlap.
TEST(StartUp, EveryControlStandsInsideItsHolder) {
    GameWindow game;
    for (const QWidget* control : game.form->findChildren<QWidget*>()) {
        if (control->objectName().isEmpty() || control->objectName().startsWith("qt_")) continue;
        const QRect holder = control->parentWidget()->rect(), place = control->geometry();
        const bool outOfSight = control->parentWidget() == game.form.get() && !holder.intersects(place);
        EXPECT_TRUE(outOfSight || holder.contains(place)) << control->objectName().toStdString();
    }
    for (std::size_t i = 0; i < 4; ++i)
        for (std::size_t j = i + 1; j < 4; ++j)
            EXPECT_FALSE(game.form->imgButton[i].geometry().intersects(game.form->imgButton[j].geometry()));
}

TEST(StartUp, UnloadingStopsTheGameAtAnyMoment) {
    for (const bool paused : {false, true}) {
        GameWindow game;
        game.Play(4);
        game.Lock();
        if (paused) game.RightClick();
        game.form->close();
        EXPECT_FALSE(game.form->Timer1.Enabled() || game.form->Timer2.Enabled());
        game.time.Pass(std::chrono::hours(1));
    }
}

TEST(StartUp, AWindowClosedAfterItsFirstPaintReadsNoSkins) {
    GameWindow game;
    game.form->show();
    game.form->grab();  // paints it
    game.form->close();
    QCoreApplication::processEvents();                               // the skins' turn
    EXPECT_EQ(game.form->picSkin[0].Contents().drawings.size(), 1);  // the frame of the chosen one
}
