#pragma once

#include <QByteArray>

// Plays WAVE data, one sound at a time.
class SoundOutput {
public:
    virtual ~SoundOutput() = default;
    // Starts `wave`, a whole RIFF WAVE file, cutting off the sound before, and returns at once. False when
    // nothing will be heard: no device, or data that is no sound.
    virtual bool Play(const QByteArray& wave) = 0;
};
