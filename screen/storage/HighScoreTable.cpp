#include "screen/storage/HighScoreTable.h"

#include "screen/storage/ScoreText.h"
#include "shell/mdlRegistry.h"

namespace {

constexpr const char* kName = "Software\\Tesselor\\Name";
constexpr const char* kDate = "Software\\Tesselor\\Date";
constexpr const char* kScore = "Software\\Tesselor\\Score";

QString Read(const char* column, int row, const QString& byDefault = {}) {
    return mdlRegistry::ReadRegString(mdlRegistry::kCurrentUser, QLatin1String(column), QString::number(row),
                                      byDefault);
}

void Write(const char* column, int row, const QString& text) {
    mdlRegistry::WriteRegString(mdlRegistry::kCurrentUser, QLatin1String(column), QString::number(row), text);
}

void Store(int row, const HighScore& entry) {
    Write(kName, row, entry.name);
    Write(kDate, row, entry.date);
    Write(kScore, row, entry.score);
}

bool IsMissing() {
    const QString none = QStringLiteral("-1");
    return Read(kScore, 0, none) == none;
}

void FillColumn(const char* column, const QString& text) {
    for (int row = 0; row < kHighScores; ++row) Write(column, row, text);
}

}  // namespace

// Check before the step too: if the table exists, start-up then neither waits nor writes.
void CreateHighScores() {
    if (!IsMissing()) return;
    const mdlRegistry::Step step;
    if (!IsMissing()) return;  // another process was faster
    FillColumn(kDate, QStringLiteral("0"));
    FillColumn(kScore, QStringLiteral("0"));
    FillColumn(kName, QString());
}

HighScore StoredHighScore(int row) {
    return {Read(kName, row), Read(kDate, row), Read(kScore, row)};
}

std::optional<int> RowForScore(const QString& score) {
    const std::int32_t points = ScoreFromText(score);
    for (int row = 0; row < kHighScores; ++row)
        if (points > ScoreFromText(Read(kScore, row))) return row;
    return std::nullopt;
}

void EnterHighScore(const HighScore& entry) {
    const mdlRegistry::Step step;
    const std::optional<int> row = RowForScore(entry.score);
    if (!row) return;
    for (int below = kHighScores - 1; below > *row; --below) Store(below, StoredHighScore(below - 1));
    Store(*row, entry);
}
