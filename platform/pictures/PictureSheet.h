#pragma once

#include <QByteArray>
#include <vector>

#include "platform/pictures/Picture.h"
#include "platform/pictures/SheetFile.h"

// A cell is fitted to a square of this many logical pixels.
inline constexpr int kCellPixels = 60;

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

    // Cell 0 alone, as sharp as a thumbnail can be and without the sheet's memory.
    [[nodiscard]] Picture Thumbnail() const { return thumbnail_; }
    // The same of the sheet in the file `path`, in less time and memory than Load; empty when that fails. Any
    // thread.
    [[nodiscard]] static Picture LoadThumbnail(const QString& path, QString& why);

private:
    explicit PictureSheet(QByteArray bytes) : bytes_(std::move(bytes)) {}
    void Cut(const QImage& sheet, qreal scale) const;
    void Recut(qreal scale) const;

    QByteArray bytes_;
    mutable std::vector<QImage> cells_;  // for the scale last asked for
    Picture thumbnail_;
};
