// The window beside a game: how it opens and closes, on screens of every usual scale, its links and its
// information window.

#include <QScreen>
#include <QWindow>

#include "screen/Look.h"
#include "screen/frmInfo.h"
#include "tests/support/GameWindow.h"

namespace {

TEST(Window, ClosingStopsTheGameAndReadsNoSkins) {
    GameWindow game;
    game.form->show();
    game.form->grab();  // its first paint, after which the skins are read
    game.Play(4);
    game.Lock();
    game.form->close();
    QCoreApplication::processEvents();
    game.time.Pass(std::chrono::hours(1));
    EXPECT_FALSE(game.form->Timer1.Enabled() || game.form->Timer2.Enabled());
    EXPECT_EQ(game.form->picSkin[0].Contents().drawings.size(), 2);  // a dash and the frame
}

TEST(Window, ShowsWhatIsPressedAndOpensItsLinks) {
    GameWindow game;
    frmGame& form = *game.form;
    form.FinishSkinSlots();
    const auto looks = [](QWidget& control) { return control.grab().toImage(); };
    const QImage bar = looks(form.Image2);
    for (auto* control :
         std::initializer_list<QWidget*>{&form.imgMinimaize, &form.imgWebLink, &form.Label4, &form.Label14,
                                         &form.Label17, &form.imgButton[0], &form.imgButton[3],
                                         &form.imgButton[4], &form.lblClass[4], &form.picSkin[0]}) {
        const QImage before = looks(*control);
        QTest::mousePress(control, Qt::LeftButton);
        EXPECT_NE(looks(*control), before) << control->objectName().toStdString();
        EXPECT_EQ(looks(form.Image2) != bar, control == &form.imgButton[0] || control == &form.imgButton[3]);
        form.imgButton_MouseUp(0, 1, 0, 0, 0);
        if (const Access* access = AccessOf(control); access->role == QAccessible::Link) access->press();
    }
    const QString home = "https://tesselor.example/";
    EXPECT_EQ(game.opened, QStringList({home, home, home, home + "play"}));
}

TEST(Window, SaysWhyThereIsNothingToPlayWithAndGoesOn) {
    GameWindow game;
    game.PlayKinds({0, 16, 32});
    QFile::remove(game.Art("test.png"));
    game.Play(), game.Open();
    game.form->imgButton_Click(0);
    EXPECT_EQ(game.dialogs.told.value(0), "\"test.png\" was not found.");
    EXPECT_TRUE(game.dialogs.told.value(1).endsWith("put one in " + game.Art().chopped(1) + '.'));
    EXPECT_EQ(game.form->CurrentMenu, 2);
}

TEST(Window, MovedToAnotherScreenLooksLikeOneThatOpensThere) {
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

TEST(Info, IsOneWindowOnTheScreenWithTheRulesReadAfresh) {
    GameWindow game;
    QDir(game.folder.path()).mkdir("Res");
    const QString path = game.folder.filePath("Res/tesselor RULES.txt");
    const std::pair<std::function<void()>, QString> cases[] = {
        {[] {}, ""},
        {[&] { WriteFile(path, "one\r\ntwo\n"); }, "one\ntwo\n"},
        {[&] { WriteFile(path, "r\xC3\xA8gles"); }, QString::fromUtf8("r\xC3\xA8gles")},
        {[&] { QFile::remove(path), MakePipe(path); }, ""},
    };
    game.form->show();
    game.form->move(0, 0);
    for (const auto& [happens, text] : cases) {
        happens();
        for (int time = 0; time < 2; ++time) game.form->cmdHelp_Click();
        const auto windows = game.form->findChildren<QWidget*>("frmInfo");
        ASSERT_EQ(windows.size(), 1);
        auto& info = static_cast<frmInfo&>(*windows[0]);
        EXPECT_EQ(info.Text1.toPlainText(), text);
        EXPECT_TRUE(game.form->screen()->availableGeometry().contains(info.geometry()));
        info.imgButton_MouseMove(0, 0, 0, 0);
        EXPECT_EQ(info.lblCaption.ForeColor(), Look::kLitCaption);
        info.Form_MouseMove(0, 0, 0, 0);
        EXPECT_EQ(info.lblCaption.ForeColor(), kWhite);
        text.isEmpty() ? QTest::keyClick(&info, Qt::Key_Escape)
                       : QTest::mouseClick(&info.imgButton, Qt::LeftButton);
        EXPECT_FALSE(info.isVisible());
    }
    QFile::remove(path), WriteFile(path, QByteArray(600 << 10, 'x'));  // no manual: shown in part
    const frmInfo part(game.form.get(), ProgramFolder(game.folder.path()));
    EXPECT_EQ(part.Text1.toPlainText(), QString(512 << 10, 'x') + "\n[...]");
}

}  // namespace
