#pragma once

#include <pulse/pulseaudio.h>

#include <QDeadlineTimer>
#include <atomic>
#include <optional>

#include "platform/sound/WaveData.h"

// A sound to be heard now: once `late` has expired it has lost its occasion and is dropped.
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

    // Cuts off the sound before and starts `sound`, connecting first when there is no connection.
    void Play(Sound sound);
    // Sleeps until the server says something, which is then handled, or until Wake.
    void AwaitEvent() { pa_mainloop_iterate(loop_, 1, nullptr); }
    // Ends the sound and the connection.
    void Disconnect();

    // Ends a sleep in AwaitEvent, also one that is about to begin. Any thread.
    void Wake();
    // Whether the last that was heard of the server is good; true until something is heard. Any thread.
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

    int bell_;  // an event counter that Wake raises and the loop watches
    pa_mainloop* loop_ = nullptr;
    pa_context* context_ = nullptr;
    pa_stream* stream_ = nullptr;  // of `sound_`, from the request for it until all has been heard
    Sound sound_;
    std::optional<Sound> next_;  // the newest sound, while the server has yet to answer
    std::atomic<bool> works_ = true;
};
