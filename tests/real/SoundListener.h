#pragma once

#include <QDeadlineTimer>
#include <QProcess>
#include <QTemporaryDir>
#include <functional>
#include <vector>

// A sound server without a device, which this process's players find, and someone who listens to it. Both end
// with this.
class SoundListener {
public:
    static constexpr int kRate = 44100;  // samples a second of what is heard

    SoundListener();
    ~SoundListener();

    // Starts the server and listens to it, from silence on. False when either does not start.
    bool Start();
    void Kill();
    void Signal(int signal) const;  // SIGSTOP: it keeps its connections and answers nobody

    // Listens until `enough` holds, at most 20 seconds; whether it holds. Asked after each piece heard.
    bool Await(const std::function<bool()>& enough);
    // Listens for a part of a second more.
    bool AwaitMore(double seconds);
    // Listens until a sound has been heard and a quarter of a second of silence after it.
    bool AwaitSoundAndSilence();
    void Forget() { heard_.clear(); }

    // What was heard since Forget: all of it, and from the first to the last sample that is not silence.
    [[nodiscard]] const std::vector<float>& Heard() const { return heard_; }
    [[nodiscard]] std::vector<float> Sound() const;

private:
    [[nodiscard]] std::size_t SilenceAtEnd() const;

    QTemporaryDir folder_;
    QProcess server_, listener_;
    std::vector<float> heard_;
};
