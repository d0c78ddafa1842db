#pragma once

#include <QString>
#include <optional>

// The table of the four best games, stored as text in the string store: one key per column, one value per
// row. Row 0 is the best.

inline constexpr int kHighScores = 4;

struct HighScore {
    QString name, date, score;  // as displayed
};

// Creates the table if its first score is missing: scores of 0 without names.
void CreateHighScores();

// The entry in `row`, 0..3; missing values are empty.
[[nodiscard]] HighScore StoredHighScore(int row);

// The first row with a score lower than `score`; nothing if that is not among the four best.
[[nodiscard]] std::optional<int> RowForScore(const QString& score);

// Inserts `entry` in its row and drops the last row; does nothing if it is not among the four best. This is
// one transaction, so two games that end at once both get their rows.
void EnterHighScore(const HighScore& entry);
