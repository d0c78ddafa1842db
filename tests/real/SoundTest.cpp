// The game's player on a real sound server, judged by what comes out of it.

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include <QElapsedTimer>
#include <QFile>
#include <algorithm>
#include <cmath>
#include <csignal>

#include "platform/SoundPlayer.h"
#include "tests/real/SoundListener.h"
#include "tests/support/Sanitized.h"

namespace {

using Samples = std::vector<float>;
constexpr int kRate = SoundListener::kRate;

QByteArray Bytes(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray Wave(int number) {
    return Bytes(QStringLiteral(":/wave/%1.wav").arg(number));
}

// What one of our own files sounds like at kRate: its head is 44 bytes, its samples have 8 bits.
Samples Expected(const QByteArray& wave) {
    const auto number = [&](int at) { return int(quint8(wave[at])) | int(quint8(wave[at + 1])) << 8; };
    const double rate = number(24);
    const int count = number(40);
    Samples samples(std::size_t((count - 1) * kRate / rate));
    for (std::size_t i = 0; i < samples.size(); ++i) {
        const double at = double(i) * rate / kRate;
        const int before = int(at);
        const auto value = [&](int sample) { return (quint8(wave[44 + sample]) - 128) / 128.0; };
        samples[i] = float(std::lerp(value(before), value(before + 1), at - before));
    }
    return samples;
}

// How alike `expected` and `heard` from `start` on are, over `count` samples: 1 the same but for the volume,
// 0 nothing in common.
double Likeness(const Samples& expected, const Samples& heard, std::ptrdiff_t start, std::size_t count) {
    double both = 0, one = 1e-12, other = 1e-12;
    for (std::size_t i = 0; i < count; ++i) {
        const std::ptrdiff_t at = start + std::ptrdiff_t(i);
        const double e = expected[i], h = at < 0 || at >= std::ssize(heard) ? 0 : heard[std::size_t(at)];
        both += e * h, one += e * e, other += h * h;
    }
    return both / std::sqrt(one * other);
}

// The start between `from` and `to` at which the first 50 milliseconds of `expected` are most alike.
std::ptrdiff_t BestStart(const Samples& expected, const Samples& heard, std::ptrdiff_t from,
                         std::ptrdiff_t to) {
    const std::size_t count = std::min<std::size_t>(expected.size(), kRate / 20);
    std::ptrdiff_t best = from;
    double most = -1;
    for (std::ptrdiff_t start = from; start < to; ++start)
        if (const double likeness = Likeness(expected, heard, start, count); likeness > most)
            most = likeness, best = start;
    return best;
}

// How alike the whole of `expected` is to what is heard from near `start` on.
double WholeLikeness(const Samples& expected, const Samples& heard, std::ptrdiff_t start = 0) {
    return Likeness(expected, heard, BestStart(expected, heard, start - 200, start + 200), expected.size());
}

// Where a sound like `expected` starts, at least 10 milliseconds apart.
std::vector<std::ptrdiff_t> Starts(const Samples& expected, const Samples& heard) {
    std::vector<std::ptrdiff_t> starts;
    for (std::ptrdiff_t at = 0; at < std::ssize(heard); at += 4) {
        if (Likeness(expected, heard, at, kRate / 40) < 0.8) continue;
        starts.push_back(BestStart(expected, heard, at - 8, at + 100));
        at += kRate / 100;
    }
    return starts;
}

class RealSound : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(listener.Start()) << "no sound server (pulseaudio), or no parec"; }

    SoundListener listener;
    SoundPlayer player;
};

TEST_F(RealSound, EachSoundIsHeardAsItIs) {
    std::vector<QByteArray> waves{Bytes(QStringLiteral(TESSELOR_BUILD "/wav/Space.wav"))};
    for (int number = 101; number <= 112; ++number) waves.push_back(Wave(number));
    for (std::size_t i = 0; i < waves.size(); ++i) {
        SCOPED_TRACE(i == 0 ? "Space.wav" : std::to_string(100 + i));
        listener.Forget();
        ASSERT_TRUE(player.Play(waves[i]));
        ASSERT_TRUE(listener.AwaitSoundAndSilence());
        EXPECT_GE(WholeLikeness(Expected(waves[i]), listener.Sound()), 0.9);
    }
}

TEST_F(RealSound, QuickMovesCutEachOtherOff) {
    const Samples move = Expected(Wave(104));
    for (int i = 0; i < 4; ++i) {
        ASSERT_TRUE(player.Play(Wave(104)));
        ASSERT_TRUE(listener.AwaitMore(0.09));
    }
    ASSERT_TRUE(listener.AwaitSoundAndSilence());
    const std::vector<std::ptrdiff_t> starts = Starts(move, listener.Heard());
    ASSERT_EQ(starts.size(), 4U);
    for (std::size_t i = 0; i + 1 < starts.size(); ++i)
        EXPECT_LT(starts[i + 1] - starts[i], std::ssize(move));
}

TEST_F(RealSound, AMoveCutsOffAScore) {
    ASSERT_TRUE(player.Play(Wave(108)));
    ASSERT_TRUE(listener.Await([this] { return listener.Sound().size() > kRate / 4; }));
    ASSERT_TRUE(player.Play(Wave(104)));
    ASSERT_TRUE(listener.AwaitSoundAndSilence());
    const Samples heard = listener.Sound(), move = Expected(Wave(104));
    EXPECT_LT(heard.size(), kRate) << "of three seconds";
    const std::vector<std::ptrdiff_t> starts = Starts(move, heard);
    ASSERT_EQ(starts.size(), 1U);
    EXPECT_GE(WholeLikeness(move, heard, starts[0]), 0.9) << "mixed with what it should have cut off";
}

TEST_F(RealSound, AHangingServerKeepsNobodyWaiting) {
    auto leaving = std::make_unique<SoundPlayer>();
    ASSERT_TRUE(player.Play(Wave(108)));
    ASSERT_TRUE(listener.AwaitMore(0.2));
    listener.Signal(SIGSTOP);
    QElapsedTimer clock;
    clock.start();
    for (int i = 0; i < 200; ++i) player.Play(Wave(108)), leaving->Play(Wave(108));
    leaving.reset();
    EXPECT_LT(clock.elapsed(), 2000);

    listener.Forget();
    listener.Signal(SIGCONT);
    player.Play(Wave(104));
    ASSERT_TRUE(listener.AwaitSoundAndSilence());
    const Samples heard = listener.Sound();
    EXPECT_LT(heard.size(), kRate) << "what was asked for meanwhile is not played now";
    EXPECT_FALSE(Starts(Expected(Wave(104)), heard).empty());
}

// Takes this process to the limit `soft` of `resource` as long as it lives.
class Limit {
public:
    Limit(decltype(RLIMIT_AS) resource, rlim_t soft) : resource_(resource) {
        getrlimit(resource, &before_);
        const rlimit tight{soft, before_.rlim_max};
        EXPECT_EQ(setrlimit(resource, &tight), 0);
    }
    ~Limit() { setrlimit(resource_, &before_); }

private:
    decltype(RLIMIT_AS) resource_;
    rlimit before_{};
};

TEST_F(RealSound, SoundsReturnOnceFilesCanBeOpenedAgain) {
    if (kSanitized) GTEST_SKIP();
    const int free = dup(STDIN_FILENO);
    close(free);
    {
        const Limit limit(RLIMIT_NOFILE, rlim_t(free));
        EXPECT_FALSE(player.Play(Wave(104)));
    }
    EXPECT_TRUE(player.Play(Wave(104)));
    EXPECT_TRUE(listener.AwaitSoundAndSilence());
}

// A connection takes 64 megabytes of addresses.
TEST_F(RealSound, SoundsReturnOnceThereIsMemoryAgain) {
    if (kSanitized) GTEST_SKIP();
    {
        const rlim_t pages = Bytes("/proc/self/statm").split(' ').first().toULongLong();
        const Limit limit(RLIMIT_AS, pages * rlim_t(getpagesize()) + 50'000'000);
        const QDeadlineTimer patience(20000);
        while (player.Play(Wave(104)) && !patience.hasExpired()) std::this_thread::yield();
        EXPECT_FALSE(patience.hasExpired()) << "takes sounds though it has no room to play them";
    }
    player.Play(Wave(105));
    ASSERT_TRUE(listener.AwaitSoundAndSilence());
    EXPECT_GE(WholeLikeness(Expected(Wave(105)), listener.Sound()), 0.9);
}

TEST_F(RealSound, SoundsReturnWithTheServer) {
    ASSERT_TRUE(player.Play(Wave(108)));
    ASSERT_TRUE(listener.Await([this] { return !listener.Sound().empty(); }));
    listener.Kill();
    const QDeadlineTimer limit(20000);
    while (player.Play(Wave(104)) && !limit.hasExpired()) std::this_thread::yield();
    ASSERT_FALSE(limit.hasExpired()) << "takes sounds though there is nothing to play them on";

    ASSERT_TRUE(listener.Start());
    player.Play(Wave(105));
    ASSERT_TRUE(listener.AwaitSoundAndSilence());
    EXPECT_GE(WholeLikeness(Expected(Wave(105)), listener.Sound()), 0.9);
    EXPECT_TRUE(player.Play(Wave(105)));
}

}  // namespace
