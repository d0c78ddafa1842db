#pragma once

#include <QDeadlineTimer>
#include <QImage>
#include <chrono>

// The grid of a picture set: cells are counted row by row from the top left.
inline constexpr int kSheetColumns = 3;
inline constexpr int kSheetRows = 13;
inline constexpr int kSheetCells = kSheetColumns * kSheetRows;

// The largest picture taken, in pixels: cells of about 640 x 640. Decoded it needs 64 megabytes.
inline constexpr qint64 kMostSheetPixels = 16'000'000;
// The largest file read, in bytes.
inline constexpr qint64 kMostSheetBytes = qint64{64} * 1024 * 1024;
// The most time decoding may take: ten times what the largest PNG took where the limit was chosen.
inline constexpr std::chrono::milliseconds kMostDecoding{5000};
// The same while the window waits, because it has come to a screen of another scale.
inline constexpr std::chrono::milliseconds kMostRedrawing{1000};

// A sentence for the player about the file `path`: `what`, in which %1 stands for its name.
[[nodiscard]] QString AboutFile(const QString& path, const QString& what);

// What the player is told when decoding the file `path` took longer.
[[nodiscard]] QString WhyTooSlow(const QString& path);

// Why the file `path` cannot be a picture set, as one sentence for the player; empty when it can, as far as
// its first kilobytes tell. Fast whatever they hold.
[[nodiscard]] QString WhyNotASheet(const QString& path);

// `image`, unless there was no memory for it: then throws std::bad_alloc.
[[nodiscard]] QImage Allocated(QImage image);

// The picture set in the file's `bytes`, in a smaller size if a cell would be longer than `mostCell` pixels,
// unless that is 0. Null when it cannot be decoded before `end`; `why` then says so for AboutFile, and is
// empty otherwise. Throws std::bad_alloc. Any thread.
[[nodiscard]] QImage DecodeSheet(const QByteArray& bytes, QDeadlineTimer end, QString& why, int mostCell = 0);
