#pragma once

#include <QByteArray>
#include <optional>

// The sound in a WAVE file: PCM samples of 8 bits (0 .. 255, silence at 128) or 16 bits (signed,
// little-endian), mono or interleaved stereo.
struct WaveData {
    int rate = 0;      // samples per second and channel, 8000 .. 48000
    int channels = 0;  // 1 or 2
    int bits = 0;      // per sample, 8 or 16
    QByteArray samples;

    // The sound in `file`, the bytes of a whole RIFF WAVE file; nothing if it has another format, is
    // truncated or inconsistent, or has no samples. Skips other chunks and what follows the RIFF chunk.
    [[nodiscard]] static std::optional<WaveData> Read(const QByteArray& file);
};
