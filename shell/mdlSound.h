#pragma once

#include <QByteArray>
#include <cstdint>

class SoundOutput;

// The built-in sounds: twelve WAVE files in the program's resources, in memory for the whole run.
namespace mdlSound {

inline constexpr std::int16_t kFirstSound = 101;
inline constexpr std::int16_t kLastSound = 112;

// Sets the sound output; null, the default, for silence. It must outlive its use here.
void Output(SoundOutput* output);

// Fills the twelve buffers. Called once in the game window's set-up, before any sound is played.
void LoadWaves();

// The buffer of the resource 101 .. 112 (asserted; another number gives an empty buffer). It is not written
// after LoadWaves and lives as long as the program.
[[nodiscard]] const QByteArray& Wave(std::int16_t resource);

// Starts `sound`, one of the buffers, cutting off the previous sound, and returns at once. False if nothing
// will be heard.
bool PlayWave(const QByteArray& sound);

}  // namespace mdlSound
