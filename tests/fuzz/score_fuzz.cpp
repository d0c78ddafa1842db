// Feeds damaged texts to the reading of scores: what is read is a score, and is read again from its digits,
// from its grouped digits, and between blanks.

#include <QLocale>

#include "screen/ScoreText.h"
#include "tests/fuzz/Fuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    const QString text = QString::fromUtf8(Bytes(data, size));
    const std::int32_t score = ScoreFromText(text);
    Require(score >= 0);
    Require(ScoreFromText(QStringLiteral(" %1\r\n").arg(text)) == score);
    Require(ScoreFromText(QString::number(score)) == score);
    Require(ScoreFromText(QLocale(QLocale::English).toString(score)) == score);
    Require(ScoreFromText(text + QStringLiteral(" points")) == 0);
    return 0;
}
