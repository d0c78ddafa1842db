#include "shell/mdlSound.h"

#include <QResource>
#include <array>
#include <cassert>

#include "platform/sound/SoundOutput.h"

namespace mdlSound {
namespace {

SoundOutput* theOutput = nullptr;
std::array<QByteArray, kLastSound - kFirstSound + 1> theWaves;

// Not copied: the program holds its sounds as they are.
QByteArray Resource(std::int16_t number) {
    return QResource(QStringLiteral(":/wave/%1.wav").arg(number)).uncompressedData();
}

}  // namespace

void Output(SoundOutput* output) {
    theOutput = output;
}

void LoadWaves() {
    for (std::int16_t number = kFirstSound; number <= kLastSound; ++number)
        theWaves[static_cast<std::size_t>(number - kFirstSound)] = Resource(number);
}

const QByteArray& Wave(std::int16_t resource) {
    static const QByteArray kNone;
    const bool known = resource >= kFirstSound && resource <= kLastSound;
    assert(known);
    return known ? theWaves[static_cast<std::size_t>(resource - kFirstSound)] : kNone;
}

bool PlayWave(const QByteArray& sound) {
    return theOutput && theOutput->Play(sound);
}

}  // namespace mdlSound
