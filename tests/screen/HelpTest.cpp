#include <gtest/gtest.h>

#include <QTest>

#include "screen/Look.h"
#include "screen/frmInfo.h"
#include "tests/support/GameWindow.h"

namespace {

void WriteRules(const GameWindow& game, const QByteArray& text) {
    QDir(game.folder.path()).mkdir("Res");
    QFile file(game.folder.filePath("Res/tesselor RULES.txt"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
}

TEST(Info, ShowsTheRulesReadAfreshEachTime) {
    struct Case {
        const char* what;
        QByteArray file;
        QString shown;
    };
    const Case cases[] = {
        {"lines ended by LF", "one\ntwo\n", "one\ntwo\n"},
        {"lines ended by CR LF", "one\r\ntwo\r\n", "one\ntwo\n"},
        {"any script", "r\xC3\xA8gles", QString::fromUtf8("r\xC3\xA8gles")},
        {"empty", "", ""},
    };
    GameWindow game;
    EXPECT_EQ(frmInfo(game.form.get(), ProgramFolder(game.folder.path())).Text1.toPlainText(), "");
    for (const Case& c : cases) {
        WriteRules(game, c.file);
        EXPECT_EQ(frmInfo(game.form.get(), ProgramFolder(game.folder.path())).Text1.toPlainText(), c.shown)
            << c.what;
    }
    WriteRules(game, QByteArray(50'000'000, 'x'));  // a file that is no manual is shown in part
    EXPECT_LT(frmInfo(game.form.get(), ProgramFolder(game.folder.path())).Text1.toPlainText().size(),
              1'000'000);
}

TEST(Info, LightsItsButtonUnderTheMouseAndClosesByButtonAndEscape) {
    GameWindow game;
    frmInfo info(game.form.get(), ProgramFolder(game.folder.path()));
    EXPECT_EQ(info.lblCaption.ForeColor(), kWhite);
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
    game.form->Label14_Click(), game.form->Label4_Click(), game.form->imgWebLink_Click(),
        game.form->Label17_Click();
    const QString home = "https://tesselor.example/";
    EXPECT_EQ(game.opened, QStringList({home, home, home, "https://tesselor.example/play"}));
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

}  // namespace
