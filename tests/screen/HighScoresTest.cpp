#include "screen/storage/HighScoreTable.h"
#include "screen/storage/ScoreText.h"
#include "tests/support/GameWindow.h"
#include "tests/support/StoreFile.h"

namespace {

using Rows = std::array<std::string, 4>;

// A window over a store: the store comes first, as in the program.
struct KeptGame : StoreFile, GameWindow {
    explicit KeptGame(const Rows& scores = {"0", "0", "0", "0"}) : StoreFile(Table(scores)) {}
    static QList<Value> Table(const Rows& scores) {
        QList<Value> table;
        for (std::size_t row = 0; row < 4; ++row)
            for (const auto& [column, text] :
                 {std::pair("Name", "N" + std::to_string(row)), {"Date", "D"}, {"Score", scores[row]}})
                table.append({QStringLiteral("Software\\Tesselor\\") + column, QString::number(row),
                              QString::fromStdString(text)});
        return table;
    }

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

TEST(HighScores, AScoreTakesTheFirstRowItIsGreaterThan) {
    const Rows usual{"9,000", "5,000", "1,000", "500"};
    const std::tuple<const char*, Rows, int, Rows> cases[] = {
        {"equal goes below", usual, 5000, {"N0|D|9,000", "N1|D|5,000", "Me|11/24/26|5,000", "N2|D|1,000"}},
        {"last", usual, 501, {"N0|D|9,000", "N1|D|5,000", "N2|D|1,000", "Me|11/24/26|501"}},
        {"kept under another locale, and no number",
         {"9.000", "5 000", "x", ""},
         5001,
         {"N0|D|9.000", "Me|11/24/26|5,001", "N1|D|5 000", "N2|D|x"}},
        {"not among the four", usual, 500, {"N0|D|9,000", "N1|D|5,000", "N2|D|1,000", "N3|D|500"}},
    };
    for (const auto& [what, stored, score, rows] : cases) {
        KeptGame game(stored);
        game.End(score);
        if (game.form->picEnterName.Visible()) game.form->txtName.setText("Me"), game.form->cmdOk_Click();
        game.form->imgButton_Click(3);
        EXPECT_EQ(game.Shown(), rows) << what;
    }
}

TEST(HighScores, TheNameEntryHasTheKeyboard) {
    KeptGame game;
    frmGame& form = *game.form;
    form.show();
    int drops = 0;
    game.time.onDropInput = [&] { drops += !form.picEnterName.Visible(); };
    game.End(250);
    EXPECT_EQ(drops, 1);
    EXPECT_EQ(form.picEnterName.geometry().center(), form.fraScreen[0].geometry().center());
    QTest::mouseClick(&form, Qt::LeftButton, {}, QPoint(5, 200));  // to move the window
    EXPECT_EQ(form.focusWidget(), &form.txtName);
    QTest::keyClick(&form.txtName, Qt::Key_Escape);
    EXPECT_FALSE(game.ended);
    const QString family = QString::fromUtf8("\U0001F469\u200D\U0001F467");
    form.txtName.setText(family.repeated(65));
    EXPECT_EQ(form.txtName.Text(), family.repeated(64));
    form.txtName.setText("Zoë");
    QTest::mouseClick(&form.cmdOk, Qt::LeftButton);
    EXPECT_TRUE(form.fraScreen[3].Visible());
    game.End(300);
    EXPECT_EQ(form.txtName.selectedText(), "Zoë");
    QTest::keyClicks(&form.txtName, " P ");
    QTest::keyClick(&form.txtName, Qt::Key_Return);
    EXPECT_EQ(game.Shown()[0] + game.Shown()[1], " P |11/24/26|300Zoë|11/24/26|250");
}

// As every locale writes them: read again, and whole in their columns where the font has the letters.
TEST(HighScores, AreReadAndFitHoweverTheyAreWritten) {
    GameWindow game;
    LineLabel &date = game.form->lblDate[0], &points = game.form->lblHighScore[0],
              &score = game.form->lblScore;
    const auto hasGlyph = [metrics = date.fontMetrics()](QChar letter) { return metrics.inFont(letter); };
    for (const QLocale& locale :
         QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyCountry)) {
        for (const std::int32_t number : {0, 10, 999, 1000, 12345, 123456, 1234567, 2147483647})
            EXPECT_EQ(ScoreFromText(locale.toString(number)), number) << locale.name().toStdString();
        date.Caption(locale.toString(QDate(2026, 12, 28), QLocale::ShortFormat));
        for (LineLabel* label : {&points, &score}) label->Caption(locale.toString(2147483647));
        const QString whole = date.Caption() + points.Caption() + score.Caption();
        EXPECT_TRUE(date.Shown() + points.Shown() + score.Shown() == whole ||
                    !std::ranges::all_of(whole, hasGlyph))
            << whole.toStdString();
    }
    for (const char* none :
         {"", "12,", ",345", "12.34", "12345,678", "1,2,345", "1,234.567", "250 points", "2²"})
        EXPECT_EQ(ScoreFromText(QString::fromUtf8(none)), 0) << none;
    EXPECT_EQ(ScoreFromText("2.147.483.648"), 2147483647) << "the most there is";
    EXPECT_EQ(ScoreFromText(" 250\n"), 250);
}

}  // namespace
