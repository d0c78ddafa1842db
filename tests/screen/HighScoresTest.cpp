#include <gtest/gtest.h>

#include <QAccessible>
#include <QHelpEvent>
#include <QTest>
#include <QToolTip>

#include "tests/support/GameWindow.h"
#include "tests/support/StoreFile.h"

namespace {

using Rows = std::array<std::string, 4>;

// A store with names, dates and these scores.
QByteArray Table(const Rows& scores) {
    const std::pair<QByteArray, Rows> columns[] = {
        {"Name", {"Na", "Nb", "Nc", "Nd"}}, {"Date", {"Da", "Db", "Dc", "Dd"}}, {"Score", scores}};
    QByteArray table;
    for (const auto& [column, texts] : columns) {
        table += "[Software\\Tesselor\\" + column + "]\n";
        for (std::size_t row = 0; row < 4; ++row)
            table += QByteArray::number(int(row)).prepend('"') + "\"=\"" + texts[row].c_str() + "\"\n";
    }
    return table;
}

// A window over a store: the store comes first, as in the program.
struct KeptGame : StoreFile, GameWindow {
    using StoreFile::StoreFile;

    // Ends a game by its last card, with `score`.
    void End(int score) {
        PlayKinds({0, 16, 32});
        Model().CardsUsed(99);
        Model().Score(score);
        Lock();
    }
    [[nodiscard]] Rows Shown() const {
        Rows rows;
        for (std::size_t i = 0; i < 4; ++i)
            rows[i] = (form->lblName[i].Caption() + '|' + form->lblDate[i].Caption() + '|' +
                       form->lblHighScore[i].Caption())
                          .toStdString();
        return rows;
    }
};

TEST(HighScores, AFirstStartMakesTheTable) {
    KeptGame game;
    game.form->imgButton_Click(3);
    EXPECT_EQ(game.Shown(), (Rows{"|0|0", "|0|0", "|0|0", "|0|0"}));
    EXPECT_EQ(game.Bytes().count("=\"\""), 4);
    game.Write(game.Bytes().replace("=\"\"", "=\"Me\""));
    const QByteArray made = game.Bytes();
    game.Open();
    EXPECT_EQ(game.Bytes(), made);
}

TEST(HighScores, AScoreTakesTheFirstRowItIsGreaterThan) {
    const Rows usual{"9,000", "5,000", "1,000", "500"};
    const std::tuple<const char*, Rows, int, Rows> cases[] = {
        {"into a new table", {"0", "0", "0", "0"}, 250, {"Me|11/24/26|250", "Na|Da|0", "Nb|Db|0", "Nc|Dc|0"}},
        {"equal goes below", usual, 5000, {"Na|Da|9,000", "Nb|Db|5,000", "Me|11/24/26|5,000", "Nc|Dc|1,000"}},
        {"last", usual, 501, {"Na|Da|9,000", "Nb|Db|5,000", "Nc|Dc|1,000", "Me|11/24/26|501"}},
        {"kept under other locales",
         {"9.000", "5 000", "1’000", "500"},
         5001,
         {"Na|Da|9.000", "Me|11/24/26|5,001", "Nb|Db|5 000", "Nc|Dc|1’000"}},
        {"no number is nothing",
         {"9,000", "", "x", "1.5"},
         1,
         {"Na|Da|9,000", "Me|11/24/26|1", "Nb|Db|", "Nc|Dc|x"}},
    };
    for (const auto& [what, stored, score, rows] : cases) {
        KeptGame game(Table(stored));
        game.End(score);
        game.form->txtName.setText(QStringLiteral("Me"));
        game.form->cmdOk_Click();
        EXPECT_EQ(game.Shown(), rows) << what;
    }
    for (const auto& [stored, score] : {std::pair(usual, 500), {Rows{"0", "0", "0", "0"}, 0}}) {
        KeptGame game(Table(stored));
        game.End(score);
        EXPECT_FALSE(game.form->picEnterName.Visible()) << "not among the four";
    }
}

TEST(HighScores, TheNameEntryTakesTheKeyboardAndClosesTheMenu) {
    KeptGame game;
    frmGame& form = *game.form;
    form.show();
    game.End(250);
    EXPECT_EQ(form.picEnterName.geometry().center(), form.fraScreen[0].geometry().center());
    EXPECT_EQ(form.focusWidget(), &form.txtName);
    for (Image& button : form.imgButton) QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_TRUE(form.fraScreen[0].Visible());
    QTest::mouseClick(&form, Qt::LeftButton, {}, QPoint(5, 200));  // to move the window
    EXPECT_EQ(form.focusWidget(), &form.txtName);
    QTest::keyClicks(&form.txtName, QString(100, 'p'));
    QTest::keyClick(&form.txtName, Qt::Key_Escape);
    EXPECT_FALSE(game.ended);
    EXPECT_EQ(form.txtName.Text().size(), 64);
    form.txtName.setText(QStringLiteral("Zoë"));
    QTest::mouseClick(&form.cmdOk, Qt::LeftButton);
    EXPECT_FALSE(form.picEnterName.Visible());
    EXPECT_TRUE(form.fraScreen[3].Visible());
    EXPECT_EQ(game.Shown()[0], "Zoë|11/24/26|250");
    for (const Image& button : form.imgButton) EXPECT_TRUE(button.Enabled());

    game.End(300);
    EXPECT_EQ(form.txtName.selectedText(), "Zoë");
    QTest::keyClicks(&form.txtName, QStringLiteral(" P "));
    QTest::keyClick(&form.txtName, Qt::Key_Return);
    EXPECT_EQ(game.Shown()[0], " P |11/24/26|300");
    form.imgButton_Click(0);
    EXPECT_EQ(form.focusWidget(), &form);
}

TEST(HighScores, ALineShowsAnyTextAndSaysAllOfIt) {
    KeptGame game;
    LineLabel& name = game.form->lblName[0];
    const auto shown = [&name](const QString& text) {
        name.Caption(text);
        return name.grab().toImage();
    };
    EXPECT_EQ(shown(QStringLiteral("two\r\n\tlines\u2028\u0007x")), shown(QStringLiteral("two lines x")));
    EXPECT_EQ(shown(QString(1 << 20, 'W')), shown(QString(100, 'W')));
    EXPECT_NE(shown(QStringLiteral("<b>x</b>")), shown(QStringLiteral("x")));
    const QString longName = "<b>" + QString(64, 'W');
    const auto tip = [&name] {
        QHelpEvent event(QEvent::ToolTip, {1, 1}, name.mapToGlobal(QPoint(1, 1)));
        QCoreApplication::sendEvent(&name, &event);
        return QToolTip::text();
    };
    EXPECT_EQ(tip(), "");
    name.Caption(longName);
    EXPECT_TRUE(tip().contains(longName.toHtmlEscaped()));
    EXPECT_EQ(name.access.name(), "Place 1: " + longName);
    const LineLabel& score = game.form->lblHighScore[0];
    EXPECT_LE(score.fontMetrics().horizontalAdvance(QStringLiteral("2,147,483,647")), score.width());
}

}  // namespace
