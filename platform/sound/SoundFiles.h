#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QHash>
#include <QString>

class SoundOutput;

// Plays sound files, caching their bytes so that each is read once.
class SoundFiles {
public:
    static constexpr qint64 kLargest = qint64{4} * 1024 * 1024;  // bytes; a larger file is not played

    // output: must outlive this.
    explicit SoundFiles(SoundOutput& output) : output_(output) {}

    // Starts the WAVE file at `path` and returns at once. Reads it if it is new or has changed. False if
    // it is missing, too large or not a sound, or the output refuses it.
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
