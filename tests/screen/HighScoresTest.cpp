#include <gtest/gtest.h>

#include <QAccessible>
#include <QTest>

#include "screen/HighScoreTable.h"
#include "tests/support/GameWindow.h"
#include "tests/support/StoreFile.h"

namespace {

using Scores = std::array<const char*, 4>;

QByteArray Table(const Scores& scores) {
    const std::pair<const char*, Scores> columns[] = {
        {"Name", {"Na", "Nb", "Nc", "Nd"}}, {"Date", {"Da", "Db", "Dc", "Dd"}}, {"Score", scores}};
    QByteArray table;
    for (const auto& [column, texts] : columns) {
        table += QByteArray("[Software\\Tesselor\\") + column + "]\n";
        for (std::size_t row = 0; row < 4; ++row)
            table += '"' + QByteArray::number(int(row)) + "\"=\"" + texts[row] + "\"\n";
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
    [[nodiscard]] std::string Row(std::size_t row) const {
        return (form->lblName[row].Caption() + '|' + form->lblDate[row].Caption() + '|' +
                form->lblHighScore[row].Caption())
            .toStdString();
    }
    [[nodiscard]] std::array<std::string, 4> Rows() const { return {Row(0), Row(1), Row(2), Row(3)}; }
};

TEST(HighScores, AFirstStartMakesTheTable) {
    KeptGame game;
    game.form->imgButton_Click(3);
    for (std::size_t row = 0; row < 4; ++row) EXPECT_EQ(game.Row(row), "|0|0");
    EXPECT_EQ(game.Bytes().count("=\"0\""), 8);
    EXPECT_EQ(game.Bytes().count("=\"\""), 4);
    const QByteArray made = game.Bytes();
    game.Open();
    EXPECT_EQ(game.Bytes(), made);
}

TEST(HighScores, AScoreTakesTheFirstRowItIsGreaterThan) {
    struct Case {
        const char* what;
        Scores stored;
        int score;
        std::array<std::string, 4> rows;  // all empty when none is taken
    };
    const Case cases[] = {
        {"into a new table", {"0", "0", "0", "0"}, 250, {"Me|11/24/26|250", "Na|Da|0", "Nb|Db|0", "Nc|Dc|0"}},
        {"equal goes below",
         {"9,000", "5,000", "1,000", "500"},
         5000,
         {"Na|Da|9,000", "Nb|Db|5,000", "Me|11/24/26|5,000", "Nc|Dc|1,000"}},
        {"last",
         {"9,000", "5,000", "1,000", "500"},
         501,
         {"Na|Da|9,000", "Nb|Db|5,000", "Nc|Dc|1,000", "Me|11/24/26|501"}},
        {"kept under other locales",
         {"9.000", "5 000", "1’000", "500"},
         5001,
         {"Na|Da|9.000", "Me|11/24/26|5,001", "Nb|Db|5 000", "Nc|Dc|1’000"}},
        {"no number is nothing",
         {"9,000", "", "x", "1.5"},
         1,
         {"Na|Da|9,000", "Me|11/24/26|1", "Nb|Db|", "Nc|Dc|x"}},
        {"equal to the fourth", {"9,000", "5,000", "1,000", "500"}, 500, {}},
        {"nothing", {"0", "0", "0", "0"}, 0, {}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        KeptGame game(Table(c.stored));
        game.End(c.score);
        const bool taken = !c.rows[0].empty();
        EXPECT_EQ(game.form->picEnterName.Visible(), taken);
        if (!taken) continue;
        game.form->txtName.setText(QStringLiteral("Me"));
        game.form->cmdOk_Click();
        EXPECT_EQ(game.Rows(), c.rows);
    }
}

TEST(HighScores, TheNameEntryTakesTheKeyboardAndClosesTheMenu) {
    KeptGame game;
    frmGame& form = *game.form;
    form.show();
    game.End(250);
    EXPECT_EQ(form.picEnterName.geometry().center(), form.fraScreen[0].geometry().center());
    EXPECT_EQ(form.focusWidget(), &form.txtName);
    for (std::size_t button = 0; button < 4; ++button)
        QTest::mouseClick(&form, Qt::LeftButton, {}, form.imgButton[button].geometry().center());
    EXPECT_TRUE(form.fraScreen[0].Visible());
    QTest::mouseClick(&form, Qt::LeftButton, {}, QPoint(5, 200));  // to move the window
    EXPECT_EQ(form.focusWidget(), &form.txtName);
    QTest::keyClicks(&form.txtName, QString(100, 'x'));
    EXPECT_EQ(form.txtName.Text().size(), 64);
    form.txtName.setText(QStringLiteral("Zoë"));
    QTest::mouseClick(&form.cmdOk, Qt::LeftButton);
    EXPECT_FALSE(form.picEnterName.Visible());
    EXPECT_TRUE(form.fraScreen[3].Visible());
    EXPECT_EQ(game.Row(0), "Zoë|11/24/26|250");
    for (const Image& button : form.imgButton) EXPECT_TRUE(button.Enabled());

    game.End(300);
    EXPECT_EQ(form.txtName.selectedText(), "Zoë");
    QTest::keyClicks(&form.txtName, QStringLiteral(" P "));
    QTest::keyClick(&form.txtName, Qt::Key_Return);
    EXPECT_EQ(game.Row(0), " P |11/24/26|300");
    form.imgButton_Click(0);
    EXPECT_EQ(form.focusWidget(), &form);
}

TEST(HighScores, WhatIsTypedNeverReachesTheBoard) {
    struct KeyCount : QObject {
        bool eventFilter(QObject*, QEvent* event) override {
            return keys += event->type() == QEvent::KeyPress, false;
        }
        int keys = 0;
    } count;
    KeptGame game;
    game.form->show();
    game.End(250);
    game.form->installEventFilter(&count);
    for (const Qt::Key key :
         {Qt::Key_Escape, Qt::Key_P, Qt::Key_Space, Qt::Key_Up, Qt::Key_Down, Qt::Key_Left, Qt::Key_F5})
        QTest::keyClick(&game.form->txtName, key);
    EXPECT_EQ(count.keys, 0);
    EXPECT_FALSE(game.ended);
}

TEST(HighScores, StartsWithWhateverLiesInTheStoresPlace) {
    struct Case {
        const char* what;
        QByteArray bytes;
        std::string first, third;
    };
    const QByteArray table = Table({"9,000", "5,000", "1,000", "500"});
    const Case cases[] = {
        {"damaged in the middle", QByteArray(table).replace("\"1,000\"", "\"1,0"), "Na|Da|9,000", "Nc|Dc|"},
        {"a name over two lines", QByteArray(table).replace("\"Na\"", "\"N\na\""), "|Da|9,000",
         "Nc|Dc|1,000"},
        {"not UTF-8", QByteArray(table).replace("Na", "\xFF"), "|0|0", "|0|0"},
        {"zeros", QByteArray(1000, '\0'), "|0|0", "|0|0"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        KeptGame game(c.bytes);
        game.form->imgButton_Click(3);
        EXPECT_EQ(game.Row(0), c.first);
        EXPECT_EQ(game.Row(2), c.third);
    }
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
    const QString longName(64, 'W');
    name.Caption(longName);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&name)->text(QAccessible::Name), longName);
    const LineLabel& score = game.form->lblHighScore[0];
    EXPECT_LE(score.fontMetrics().horizontalAdvance(QStringLiteral("2,147,483,647")), score.width());
}

}  // namespace
