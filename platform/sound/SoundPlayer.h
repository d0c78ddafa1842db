#pragma once

#include <memory>
#include <thread>

#include "platform/sound/SoundOutput.h"

// The computer's sound. Play hands the sound to a thread, so it never blocks, even if the sound server
// hangs; if sounds arrive faster than they can be started, the newest wins. The thread starts with the first
// sound and sleeps between sounds. Where it cannot start, the next sound tries again.
class SoundPlayer final : public SoundOutput {
public:
    SoundPlayer() = default;
    // Stops the sound. A thread that does not end promptly is detached.
    ~SoundPlayer() override;
    SoundPlayer(const SoundPlayer&) = delete;
    SoundPlayer& operator=(const SoundPlayer&) = delete;

    bool Play(const QByteArray& wave) override;

private:
    struct Desk;
    static void Work(const std::shared_ptr<Desk>& desk);
    bool Begin();

    std::shared_ptr<Desk> desk_;  // hands sounds to the thread; owned by both sides
    std::thread thread_;
};
