// Feeds damaged files to the reading of sounds: what is read can be played, stands in the file, and is read
// again from a file of just that.

#include <QtEndian>

#include "platform/WaveData.h"
#include "tests/fuzz/Fuzz.h"

namespace {

template <class T>
QByteArray Number(qsizetype number) {
    const T bytes = qToLittleEndian(static_cast<T>(number));
    return {reinterpret_cast<const char*>(&bytes), sizeof bytes};
}

QByteArray Chunk(const QByteArray& name, const QByteArray& bytes) {
    return name + Number<quint32>(bytes.size()) + bytes;
}

QByteArray FileOf(const WaveData& wave) {
    const int frame = wave.channels * wave.bits / 8;
    const QByteArray format = Number<quint16>(1) + Number<quint16>(wave.channels) +
                              Number<quint32>(wave.rate) + Number<quint32>(wave.rate * frame) +
                              Number<quint16>(frame) + Number<quint16>(wave.bits);
    return Chunk("RIFF", "WAVE" + Chunk("fmt ", format) + Chunk("data", wave.samples));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    const QByteArray file = Bytes(data, size);
    const auto wave = WaveData::Read(file);
    if (!wave) return 0;
    Require(wave->rate >= 8000 && wave->rate <= 48000);
    Require(wave->channels == 1 || wave->channels == 2);
    Require(wave->bits == 8 || wave->bits == 16);
    Require(!wave->samples.isEmpty() && file.contains(wave->samples));
    const auto again = WaveData::Read(FileOf(*wave));
    Require(again && again->rate == wave->rate && again->channels == wave->channels);
    Require(again->bits == wave->bits && again->samples == wave->samples);
    return 0;
}
