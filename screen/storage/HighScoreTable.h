#pragma once

#include <QString>
#include <optional>

// The table of the four best games, kept as text in the string store: a key for each column, in it a value
// for each row. Row 0 is the best.

inline constexpr int kHighScores = 4;

struct HighScore {
    QString name, date, score;  // as they are shown
};

// Creates the table when there is none: nameless scores of 0. Whether there is one is told by its first score
// alone.
void CreateHighScores();

// What is stored in `row`, 0..3; empty texts for what is missing.
[[nodiscard]] HighScore StoredHighScore(int row);

// The first row whose score is smaller than `score`; nothing when it is not among the four best.
[[nodiscard]] std::optional<int> RowForScore(const QString& score);

// Puts `entry` into its row, and those below one down; the last is lost. Nothing happens when it is not among
// the four best. Search and change are one step, so games that end at the same moment both find their rows.
void EnterHighScore(const HighScore& entry);
