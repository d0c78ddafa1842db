// Feeds damaged files to the reading of sounds: what is read can be played and stands in the file.

#include <cstdlib>

#include "platform/WaveData.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    const QByteArray file(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const auto wave = WaveData::Read(file);
    if (!wave) return 0;
    const bool holds = wave->rate >= 8000 && wave->rate <= 48000 && !wave->samples.isEmpty() &&
                       wave->samples.size() % (wave->channels * wave->bits / 8) == 0 &&
                       file.contains(wave->samples);
    if (!holds) std::abort();  // so the fuzzer keeps the input
    return 0;
}
