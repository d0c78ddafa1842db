#pragma once

#include <pulse/pulseaudio.h>

#include <QDeadlineTimer>
#include <array>
#include <atomic>
#include <optional>

#include "platform/sound/WaveData.h"

// A sound to play now; dropped once `late` has expired.
struct Sound {
    WaveData wave;
    QDeadlineTimer late;
};

// The connection to the sound server (PulseAudio, or PipeWire in its place), which plays one sound at a time.
//
// Confined to one thread unless noted. Nothing here blocks on a reply: replies call ContextChanged,
// StreamChanged or CloseStream from within AwaitEvent. If the server hangs, only the sound is lost; if it has
// gone, the next sound tries to reconnect.
class SoundServer {
public:
    // Throws std::system_error when out of file descriptors.
    SoundServer();
    ~SoundServer();
    SoundServer(const SoundServer&) = delete;
    SoundServer& operator=(const SoundServer&) = delete;

    // Called first: waits for Wake and loads libpulse. False without it, or when out of file descriptors.
    bool Start();
    // Cuts off the previous sound and starts `sound`, connecting first if there is no connection.
    void Play(Sound sound);
    // Sleeps until it has handled an event from the server, or until Wake.
    void AwaitEvent();
    // Ends the sound and the connection.
    void Disconnect();

    // Ends a sleep in AwaitEvent, also one that is about to begin. Any thread.
    void Wake();
    // Whether the server worked when last heard from; true at first. Any thread.
    [[nodiscard]] bool Works() const { return works_; }

private:
    void Connect();
    void ContextChanged();
    void StartNext();
    void OpenStream();
    void StreamChanged();
    void WriteAll();
    void CloseStream();
    void GiveUp();

    std::array<int, 2> bell_{};  // a pipe that Wake writes to and the loop watches
    pa_mainloop* loop_ = nullptr;
    pa_context* context_ = nullptr;
    pa_stream* stream_ = nullptr;  // of `sound_`, from its request until it has been played
    Sound sound_;
    std::optional<Sound> next_;  // the newest sound, while the server has yet to answer
    std::atomic<bool> works_ = true;
};
