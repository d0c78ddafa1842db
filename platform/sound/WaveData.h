#pragma once

#include <QByteArray>
#include <optional>

// The sound in a WAVE file, as it can be played: plain samples of 8 bits (0 .. 255, silence at 128) or 16
// bits (signed, low byte first), on one channel or two that take turns.
struct WaveData {
    int rate = 0;      // samples a second of each channel, 8000 .. 48000
    int channels = 0;  // 1 or 2
    int bits = 0;      // of a sample, 8 or 16
    QByteArray samples;

    // The sound in `file`, the bytes of a whole RIFF WAVE file; nothing when it is another kind of file or of
    // sound, is cut short, contradicts itself or holds no sample. Chunks of other kinds are skipped, and so
    // is what comes after the file's own end.
    [[nodiscard]] static std::optional<WaveData> Read(const QByteArray& file);
};
