#include "platform/sound/WaveData.h"

#include <QtEndian>

namespace {

constexpr qsizetype kHead = 12;      // "RIFF", the size of the rest, "WAVE"
constexpr qsizetype kChunkHead = 8;  // a name and the size of its contents
constexpr qsizetype kFormat = 16;    // the PCM part of a "fmt " chunk
constexpr int kPlainSamples = 1;

// The little-endian T at `at`, which must be in range.
template <typename T>
qsizetype Number(QByteArrayView bytes, qsizetype at) {
    return qFromLittleEndian<T>(bytes.sliced(at, sizeof(T)).data());
}

// The contents of the RIFF chunk, as long as its header states; empty if that is invalid.
QByteArrayView Body(QByteArrayView file) {
    if (file.size() < kHead || !file.startsWith("RIFF") || file.sliced(8, 4) != "WAVE") return {};
    const qsizetype end = 8 + Number<quint32>(file, 4);
    return end >= kHead && end <= file.size() ? file.sliced(kHead, end - kHead) : QByteArrayView();
}

// The contents of the first chunk `name`; null if there is none or an earlier chunk is truncated.
QByteArrayView Chunk(QByteArrayView body, QByteArrayView name) {
    while (body.size() >= kChunkHead) {
        const qsizetype size = Number<quint32>(body, 4);
        if (size > body.size() - kChunkHead) break;
        if (body.startsWith(name)) return body.sliced(kChunkHead, size);
        body = body.sliced(std::min(kChunkHead + size + size % 2, body.size()));
    }
    return {};
}

bool IsPlayable(const WaveData& wave) {
    return (wave.channels == 1 || wave.channels == 2) && (wave.bits == 8 || wave.bits == 16) &&
           wave.rate >= 8000 && wave.rate <= 48000;
}

}  // namespace

std::optional<WaveData> WaveData::Read(const QByteArray& file) {
    const QByteArrayView body = Body(file);
    const QByteArrayView format = Chunk(body, "fmt ");
    const QByteArrayView data = Chunk(body, "data");
    if (format.size() < kFormat || Number<quint16>(format, 0) != kPlainSamples) return {};
    const qsizetype channels = Number<quint16>(format, 2), rate = Number<quint32>(format, 4);
    const qsizetype bits = Number<quint16>(format, 14), frame = channels * bits / 8;
    if (Number<quint32>(format, 8) != rate * frame || Number<quint16>(format, 12) != frame) return {};
    WaveData wave{int(rate), int(channels), int(bits), data.toByteArray()};
    if (!IsPlayable(wave) || data.isEmpty() || data.size() % frame != 0) return {};
    return wave;
}
