#include <gtest/gtest.h>

#include <QTest>

#include "screen/Look.h"
#include "screen/frmInfo.h"
#include "tests/support/Files.h"
#include "tests/support/GameWindow.h"

TEST(Info, ShowsTheRulesReadAfreshEachTime) {
    GameWindow game;
    const auto shown = [&game] {
        return frmInfo(game.form.get(), ProgramFolder(game.folder.path())).Text1.toPlainText();
    };
    EXPECT_EQ(shown(), "");
    QDir(game.folder.path()).mkdir("Res");
    const std::pair<QByteArray, QString> files[] = {
        {"one\ntwo\n", "one\ntwo\n"},
        {"one\r\ntwo\r\n", "one\ntwo\n"},
        {"r\xC3\xA8gles", QString::fromUtf8("r\xC3\xA8gles")},
        {"", ""},
    };
    for (const auto& [bytes, text] : files) {
        WriteFile(game.folder.filePath("Res/tesselor RULES.txt"), bytes);
        EXPECT_EQ(shown(), text);
    }
    const QString path = game.folder.filePath("Res/tesselor RULES.txt");
    WriteFile(path, "manual");
    QFile::resize(path, 1 << 30);
    EXPECT_TRUE(shown().startsWith("manual"));
    EXPECT_LT(shown().size(), 1'000'000) << "a file that is no manual is shown in part";
    QFile::remove(path);
    MakePipe(game.folder.filePath("Res/Tesselor rules.txt"));
    EXPECT_EQ(shown(), "");
}

TEST(Info, LightsItsButtonUnderTheMouseAndClosesByButtonAndEscape) {
    GameWindow game;
    frmInfo info(game.form.get(), ProgramFolder(game.folder.path()));
    info.imgButton_MouseMove(0, 0, 0, 0);
    EXPECT_EQ(info.lblCaption.ForeColor(), Look::kLitCaption);
    info.Form_MouseMove(0, 0, 0, 0);
    EXPECT_EQ(info.lblCaption.ForeColor(), kWhite);
    info.show();
    QTest::mouseClick(&info.imgButton, Qt::LeftButton);
    EXPECT_FALSE(info.isVisible());
    info.show();
    QTest::keyClick(&info.Text1, Qt::Key_Escape);
    EXPECT_FALSE(info.isVisible());
}

TEST(Help, LinksOpenTheTwoAddressesOnly) {
    GameWindow game;
    game.form->Label14_Click(), game.form->Label4_Click(), game.form->imgWebLink_Click();
    game.form->Label17_Click();
    const QString home = "https://tesselor.example/";
    EXPECT_EQ(game.opened, QStringList({home, home, home, home + "play"}));
}

TEST(Help, MoreShowsTheInformationWindowOnTheScreen) {
    GameWindow game;
    game.form->show();
    game.form->move(0, 0);
    game.form->cmdHelp_Click();
    const auto windows = game.form->findChildren<QWidget*>("frmInfo");
    ASSERT_EQ(windows.size(), 1);
    EXPECT_TRUE(game.form->screen()->availableGeometry().contains(windows[0]->geometry()));
    game.form->cmdHelp_Click();  // the same again
    EXPECT_EQ(game.form->findChildren<QWidget*>("frmInfo"), windows);
}
