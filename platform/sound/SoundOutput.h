#pragma once

#include <QByteArray>

// Plays WAVE data, one sound at a time.
class SoundOutput {
public:
    virtual ~SoundOutput() = default;
    // Starts `wave`, a whole RIFF WAVE file, cutting off the previous sound, and returns at once. False if
    // nothing will be heard: the data is not a sound or, as far as known, there is no output.
    virtual bool Play(const QByteArray& wave) = 0;
};
