#include <gtest/gtest.h>

#include <QTest>

#include "screen/Look.h"
#include "tests/support/GameWindow.h"

namespace {

constexpr std::int16_t kPlay = 0, kMenu = 1, kHelp = 2, kScore = 3, kMore = 4;

TEST(Menu, LightsTheCaptionOfTheScreenShown) {
    const std::tuple<const char*, std::vector<std::int16_t>, int, int> cases[] = {
        {"the same twice", {kPlay, kPlay}, kPlay, 0},
        {"menu", {kMenu}, kMenu, 1},
        {"help again", {kHelp}, kHelp, 2},
        {"high scores light nothing", {kMenu, kScore}, -1, 3},
        {"the remembered one stays dark", {kMenu, kScore, kMenu}, -1, 1},
        {"another one lights up after the scores", {kMenu, kScore, kHelp}, kHelp, 2},
        {"more shows the help screen", {kMore}, kMore, 2},
    };
    for (const auto& [what, clicks, lit, shown] : cases) {
        SCOPED_TRACE(what);
        GameWindow game;
        for (const std::int16_t click : clicks) game.form->imgButton_Click(click);
        for (int i = 0; i < 5; ++i)
            EXPECT_EQ(game.form->lblCaption[std::size_t(i)].ForeColor(),
                      i == lit ? Look::kLitCaption : kWhite);
        for (int i = 0; i < 4; ++i) EXPECT_EQ(game.form->fraScreen[std::size_t(i)].Visible(), i == shown);
    }
}

TEST(Menu, LeavingTheBoardStopsTheTimersAndPlayStartsAfresh) {
    GameWindow game;
    game.PlayKinds({0, 16, 32}, 4);
    game.Lock();
    game.Model().Score(77);
    game.form->imgButton_Click(kHelp);
    EXPECT_FALSE(game.form->Timer1.Enabled() || game.form->Timer2.Enabled());
    EXPECT_TRUE(game.form->picPreview.Picture().IsEmpty());
    EXPECT_TRUE(game.form->lblNextCard.Visible());
    game.form->imgButton_Click(kPlay);
    EXPECT_EQ(game.Model().CardsInMatrix(), 0);
    EXPECT_EQ(game.Model().Score(), 0);
    EXPECT_EQ(game.form->lblCardsLeft.Caption(), "100");
    EXPECT_FALSE(game.form->lblNextCard.Visible());
    EXPECT_EQ(game.Model().SetLevel(), 4);
}

TEST(Menu, ALevelChangesWhatIsShownAndTheNextLockTime) {
    GameWindow game;
    frmGame& form = *game.form;
    form.lblClass_MouseMove(3, 0, 0, 0, 0);
    EXPECT_EQ(form.Shape1.Top(), form.lblClass[3].Top() + 67);
    form.lblClass_Click(3);
    EXPECT_EQ(form.lblClass[0].ForeColor(), Look::kLevel);
    EXPECT_EQ(form.lblClass[3].ForeColor(), kRed);
    EXPECT_TRUE(form.shpLevel.geometry().contains(form.lblClass[3].geometry().center()));
    EXPECT_FALSE(form.shpLevel.geometry().intersects(form.Shape1.geometry()));
    EXPECT_EQ(form.lblLevelName.Caption(), "expert");
    EXPECT_EQ(game.Model().CurrentInterval(), 3800);
    EXPECT_TRUE(form.shpTime.Visible() && form.prbTime.Visible());
    form.lblClass_Click(0);
    EXPECT_FALSE(form.shpTime.Visible() || form.prbTime.Visible());
}

TEST(Menu, WhateverAnswersAClickShowsThatItIsPressed) {
    GameWindow game;
    frmGame& form = *game.form;
    form.FinishSkinSlots();
    for (QWidget* control : std::initializer_list<QWidget*>{
             &form.Image1, &form.imgMinimaize, &form.imgWebLink, &form.Label4, &form.Label14, &form.Label17,
             &form.imgButton[kPlay], &form.imgButton[kMore], &form.lblClass[4], &form.picSkin[0]}) {
        SCOPED_TRACE(control->objectName().toStdString());
        const QImage before = control->grab().toImage();
        QTest::mousePress(control, Qt::LeftButton);
        EXPECT_NE(control->grab().toImage(), before);
    }
}

TEST(Menu, APressedButtonIsSeenUntilTheRelease) {
    GameWindow game;
    const auto bar = [&game] { return game.form->Image2.grab().toImage(); };
    const QImage released = bar();
    for (std::int16_t i = 0; i < 4; ++i) {
        game.form->imgButton_MouseDown(i, 1, 0, 0, 0);
        EXPECT_NE(bar(), released) << i;
        game.form->imgButton_MouseUp(i, 1, 0, 0, 0);
        EXPECT_EQ(bar(), released) << i;
    }
    game.form->imgButton_MouseDown(kMore, 1, 0, 0, 0);
    EXPECT_EQ(bar(), released);
}

TEST(Menu, PlayWithASkinThatIsGoneLocksTheBoard) {
    GameWindow game;
    game.PlayKinds({0, 16, 32});
    QFile::remove(game.folder.filePath("Art/test.png"));
    game.Play();
    game.Lock(), game.RightClick();
    EXPECT_EQ(game.dialogs.told, QStringList("\"test.png\" is not there."));
    EXPECT_EQ(game.Model().CardsInMatrix(), 0);
}

TEST(Menu, PlayWithoutASkinSaysWhereItLookedAndGoesOn) {
    GameWindow game(/*withSkin=*/false);
    game.form->imgButton_Click(kPlay);
    ASSERT_EQ(game.dialogs.told.size(), 1);
    EXPECT_TRUE(game.dialogs.told[0].contains(game.folder.path() + "/Art"))
        << game.dialogs.told[0].toStdString();
    EXPECT_EQ(game.form->CurrentMenu, kHelp);
    game.form->imgButton_Click(kMenu);
    EXPECT_TRUE(game.form->fraScreen[1].Visible());
}

}  // namespace
