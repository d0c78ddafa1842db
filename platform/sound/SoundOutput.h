#pragma once

#include <QByteArray>

// Plays WAVE data, one sound at a time.
class SoundOutput {
public:
    virtual ~SoundOutput() = default;
    // Starts `wave`, a whole RIFF WAVE file, cutting off the sound before, and returns at once. False when
    // nothing will be heard: data that is no sound, or, as far as is known by now, nothing to play it on.
    virtual bool Play(const QByteArray& wave) = 0;
};
