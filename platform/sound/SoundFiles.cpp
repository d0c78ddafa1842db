#include "platform/sound/SoundFiles.h"

#include <QFile>
#include <QFileInfo>

#include "platform/sound/SoundOutput.h"

bool SoundFiles::Play(const QString& path) {
    const QFileInfo info(path);
    // Regular files only: opening a FIFO would block.
    if (!info.isFile() || info.size() > kLargest) return false;
    Kept& kept = kept_[path];
    if (kept.changed != info.lastModified() || kept.size != info.size()) {
        QFile file(path);
        kept = {info.lastModified(), info.size(),
                file.open(QIODevice::ReadOnly) ? file.read(kLargest) : QByteArray()};
    }
    return output_.Play(kept.bytes);
}
