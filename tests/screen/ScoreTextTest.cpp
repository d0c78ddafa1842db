#include "screen/ScoreText.h"

#include <gtest/gtest.h>

#include <QLocale>
#include <limits>

TEST(ScoreText, ReadsWholeNumbersHoweverTheyAreGrouped) {
    const std::tuple<const char*, const char*, std::int32_t> cases[] = {
        {"Indian", "1,23,456", 123456},
        {"the largest", "2,147,483,647", 2147483647},
        {"one more", "2.147.483.648", 2147483647},
        {"blanks around", " 250\n", 250},
        {"nothing", "", 0},
        {"no group after the mark", "12,", 0},
        {"no group before it", ",345", 0},
        {"a fraction", "12.34", 0},
        {"a long group", "12345,678", 0},
        {"a short group", "1,2,345", 0},
        {"two kinds of marks", "1,234.567", 0},
        {"a number with words", "250 points", 0},
        {"a superscript", "2²", 0},
    };
    for (const auto& [what, text, number] : cases)
        EXPECT_EQ(ScoreFromText(QString::fromUtf8(text)), number) << what;
}

TEST(ScoreText, ReadsWhatEveryLocaleWrites) {
    constexpr std::int32_t most = std::numeric_limits<std::int32_t>::max();
    for (const QLocale& locale :
         QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyCountry))
        for (const std::int32_t score : {0, 10, 999, 1000, 12345, 123456, 1234567, most})
            EXPECT_EQ(ScoreFromText(locale.toString(score)), score) << locale.name().toStdString();
}
