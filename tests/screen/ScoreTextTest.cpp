#include "screen/ScoreText.h"

#include <gtest/gtest.h>

#include <QLocale>

// As every locale writes numbers, and as none does.
TEST(ScoreText, ReadsWholeNumbersHoweverTheyAreGrouped) {
    for (const QLocale& locale :
         QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyCountry))
        for (const std::int32_t score : {0, 10, 999, 1000, 12345, 123456, 1234567, 2147483647})
            EXPECT_EQ(ScoreFromText(locale.toString(score)), score) << locale.name().toStdString();
    for (const char* none :
         {"", "12,", ",345", "12.34", "12345,678", "1,2,345", "1,234.567", "250 points", "2²"})
        EXPECT_EQ(ScoreFromText(QString::fromUtf8(none)), 0) << none;
    EXPECT_EQ(ScoreFromText("2.147.483.648"), 2147483647) << "the most there is";
    EXPECT_EQ(ScoreFromText(" 250\n"), 250);
}
