#pragma once

#include "platform/PictureSheet.h"

// The picture-clip control: holds a picture set and hands out its cells.
class PictureClip {
public:
    // Takes the picture set in the file `path`. Empty when it did; otherwise the reason as one sentence for
    // the player, and the set held before stays.
    [[nodiscard]] QString Load(const QString& path) {
        QString why;
        if (auto loaded = PictureSheet::Load(path, why)) sheet_ = std::move(loaded);
        return why;
    }

    // Cell 0 .. 38 as a picture; the empty picture before anything was loaded.
    [[nodiscard]] Picture Cell(int cell) const { return sheet_ ? Picture(sheet_, cell) : Picture(); }
    [[nodiscard]] Picture Thumbnail() const { return sheet_ ? sheet_->Thumbnail() : Picture(); }

private:
    std::shared_ptr<const PictureSheet> sheet_;
};
