#pragma once

#include <QByteArray>
#include <chrono>
#include <vector>

#include "platform/pictures/Picture.h"

// The grid of a picture set: cells are counted row by row from the top left.
inline constexpr int kSheetColumns = 3;
inline constexpr int kSheetRows = 13;
inline constexpr int kSheetCells = kSheetColumns * kSheetRows;

// The largest picture taken, in pixels: cells of about 640 x 640. Decoded it needs 64 megabytes.
inline constexpr qint64 kMostSheetPixels = 16'000'000;
// The largest file read, in bytes.
inline constexpr qint64 kMostSheetBytes = qint64{64} * 1024 * 1024;
// A cell is fitted to a square of this many logical pixels.
inline constexpr int kCellPixels = 60;

// The most time decoding may take: ten times what the largest PNG took where the limit was chosen.
inline constexpr std::chrono::milliseconds kMostDecoding{5000};
// The same while the window waits, because it has come to a screen of another scale.
inline constexpr std::chrono::milliseconds kMostRedrawing{1000};

// What the player is told of a file for which that was not enough.
[[nodiscard]] QString WhyTooSlow(const QString& path);

// Why the file `path` cannot be a picture set, as one sentence for the player that names the file; empty when
// it can, as far as its first kilobytes tell. Fast whatever they hold.
[[nodiscard]] QString WhyNotASheet(const QString& path);

// A picture cut into 3 x 13 equal cells, each fitted to 60 x 60 logical pixels with its aspect kept. Keeps
// the bytes of the file, so that a picture in use outlives its file and can be drawn again at another scale.
class PictureSheet final : public PictureSource {
public:
    // The sheet in the file `path`, or null and the sentence for the player in `why`. Any thread.
    [[nodiscard]] static std::shared_ptr<PictureSheet> Load(const QString& path, QString& why);

    ~PictureSheet() override;
    PictureSheet(const PictureSheet&) = delete;
    PictureSheet& operator=(const PictureSheet&) = delete;

    // Cell 0 .. 38; a null image for any other number.
    [[nodiscard]] QImage Render(int cell, qreal scale) const override;

    // The bytes of the file it came from.
    [[nodiscard]] const QByteArray& Bytes() const { return bytes_; }

    // Cell 0 alone in its own resolution, without the sheet's memory: what a thumbnail needs.
    [[nodiscard]] Picture Thumbnail() const;

private:
    static std::shared_ptr<PictureSheet> FromBytes(const QByteArray& bytes, const QString& path,
                                                   QString& why);
    explicit PictureSheet(QByteArray bytes) : bytes_(std::move(bytes)) {}
    void Cut(const QImage& sheet, qreal scale) const;
    void Recut(qreal scale) const;

    QByteArray bytes_;
    mutable std::vector<QImage> cells_;  // for the scale last asked for
    QImage first_;
};
