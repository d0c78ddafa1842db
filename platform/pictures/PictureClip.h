#pragma once

#include <QDateTime>
#include <QFileInfo>
#include <functional>

#include "platform/pictures/PictureSheet.h"

// What loads a sheet as PictureSheet::Load does, in some other way.
using SheetLoader = std::function<std::shared_ptr<PictureSheet>(const QString& path, QString& why)>;

// The picture-clip control: holds a picture set and hands out its cells.
class PictureClip {
public:
    // Takes the picture set in the file `path`. Empty when it did; otherwise the reason as one sentence for
    // the player, and the set held before stays. A file that has not changed since is not read again.
    [[nodiscard]] QString Load(const QString& path, const SheetLoader& load = PictureSheet::Load) {
        const QFileInfo file(path);
        const Origin origin{path, file.lastModified(), file.size()};
        if (sheet_ && file.isFile() && origin == origin_) return {};
        QString why;
        if (auto loaded = load(path, why)) {
            sheet_ = std::move(loaded);
            origin_ = origin;
        }
        return why;
    }

    // Cell 0 .. 38 as a picture; the empty picture before anything was loaded.
    [[nodiscard]] Picture Cell(int cell) const { return sheet_ ? Picture(sheet_, cell) : Picture(); }
    [[nodiscard]] Picture Thumbnail() const { return sheet_ ? sheet_->Thumbnail() : Picture(); }

private:
    struct Origin {
        QString path;
        QDateTime changed;
        qint64 size = 0;
        friend bool operator==(const Origin&, const Origin&) = default;
    };

    Origin origin_;  // of `sheet_`
    std::shared_ptr<const PictureSheet> sheet_;
};
