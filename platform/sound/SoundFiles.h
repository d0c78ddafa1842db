#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QHash>
#include <QString>

class SoundOutput;

// Plays sounds that are files, keeping their bytes so that a sound heard often is read once.
class SoundFiles {
public:
    static constexpr qint64 kLargest = qint64{4} * 1024 * 1024;  // bytes; a larger file is not played

    // output: where they are heard; it must outlive this.
    explicit SoundFiles(SoundOutput& output) : output_(output) {}

    // Starts the WAVE file at `path` and returns at once. Reads it when it has not been read or has changed
    // since. False, in silence, when it is missing, too large or no sound, or the output refuses it.
    bool Play(const QString& path);

private:
    struct Kept {
        QDateTime changed;
        qint64 size = -1;
        QByteArray bytes;
    };

    SoundOutput& output_;
    QHash<QString, Kept> kept_;
};
