#include "tests/real/SoundListener.h"

#include <algorithm>
#include <cmath>
#include <csignal>

namespace {

// Less than half a step of 8 bits.
bool IsSilent(float sample) {
    return std::abs(sample) < 0.003F;
}

void End(QProcess& process) {
    process.kill();
    process.waitForFinished(5000);
}

}  // namespace

SoundListener::SoundListener() {
    qputenv("PULSE_SERVER", "unix:" + folder_.filePath("native").toLocal8Bit());
    for (const char* name : {"PULSE_RUNTIME_PATH", "XDG_RUNTIME_DIR", "HOME", "XDG_CONFIG_HOME"})
        qputenv(name, folder_.path().toLocal8Bit());
}

SoundListener::~SoundListener() {
    End(listener_);
    End(server_);
}

// Without rewinding: what is heard of a speaker that rewinds lacks the first milliseconds of a sound.
bool SoundListener::Start() {
    // Without rewinds: what the server would rewind and mix anew has been handed to a listener already, who
    // would miss the beginning of each sound.
    const QString speaker =
        QStringLiteral("module-null-sink sink_name=quiet norewinds=1 channels=1 rate=%1").arg(kRate);
    server_.setProcessChannelMode(QProcess::MergedChannels);
    server_.start("pulseaudio", {"-n", "--daemonize=no", "--use-pid-file=no", "--exit-idle-time=-1",
                                 "--log-target=stderr", "--log-level=info", "--load=" + speaker,
                                 "--load=module-native-protocol-unix auth-anonymous=1 socket=" +
                                     folder_.filePath("native")});
    QByteArray log;
    while (!log.contains("startup complete"))
        if (!server_.waitForReadyRead(20000))
            return false;
        else
            log += server_.readAll();
    listener_.start("parec", {"--device=quiet.monitor", "--raw", "--format=s16le", "--channels=1",
                              "--latency-msec=20", QStringLiteral("--rate=%1").arg(kRate)});
    Forget();
    return Await([this] { return !heard_.empty(); });
}

void SoundListener::Kill() {
    End(server_);
    End(listener_);
}

void SoundListener::Signal(int signal) const {
    ::kill(static_cast<pid_t>(server_.processId()), signal);
}

bool SoundListener::Await(const std::function<bool()>& enough) {
    const QDeadlineTimer limit(20000);
    while (!enough()) {
        if (limit.hasExpired() || !listener_.waitForReadyRead(int(limit.remainingTime()))) return false;
        const QByteArray bytes = listener_.read(listener_.bytesAvailable() / 2 * 2);
        const auto* samples = reinterpret_cast<const qint16*>(bytes.constData());
        std::transform(samples, samples + bytes.size() / 2, std::back_inserter(heard_),
                       [](qint16 sample) { return float(sample) / 32768; });
    }
    return true;
}

bool SoundListener::AwaitMore(double seconds) {
    const std::size_t until = heard_.size() + std::size_t(seconds * kRate);
    return Await([=, this] { return heard_.size() >= until; });
}

bool SoundListener::AwaitSoundAndSilence() {
    return Await([this] {
        const std::size_t silence = SilenceAtEnd();
        return silence < heard_.size() && silence >= kRate / 4;
    });
}

std::size_t SoundListener::SilenceAtEnd() const {
    return std::size_t(std::find_if_not(heard_.rbegin(), heard_.rend(), IsSilent) - heard_.rbegin());
}

std::vector<float> SoundListener::Sound() const {
    const auto first = std::find_if_not(heard_.begin(), heard_.end(), IsSilent);
    return first == heard_.end() ? std::vector<float>()
                                 : std::vector<float>(first, heard_.end() - std::ptrdiff_t(SilenceAtEnd()));
}
