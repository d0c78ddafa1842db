#include "platform/sound/SoundPlayer.h"

#include <QTimer>
#include <condition_variable>
#include <mutex>
#include <system_error>
#include <utility>

#include "platform/sound/SoundServer.h"

namespace {

using namespace std::chrono_literals;

// A sound that would start later than this no longer matches the screen and is dropped.
constexpr auto kLate = 1s;
constexpr auto kPatienceAtTheEnd = 200ms;
// Delay the sound so that drawing comes first: each slows the other down, and the delay is inaudible.
constexpr auto kBehindThePicture = 3ms;
// The same for the first sound, which needs libpulse: its loading must not delay the window.
constexpr auto kBehindTheWindow = 100ms;

}  // namespace

struct SoundPlayer::Desk {
    SoundServer server;
    std::mutex mutex;  // guards the members below; never held during another wait
    std::optional<Sound> newest;
    bool toEnd = false, hasEnded = false;
    std::condition_variable end;
};

SoundPlayer::~SoundPlayer() {
    if (!desk_) return;
    std::unique_lock lock(desk_->mutex);
    desk_->toEnd = true;
    desk_->server.Wake();
    const bool ended = desk_->end.wait_for(lock, kPatienceAtTheEnd, [this] { return desk_->hasEnded; });
    lock.unlock();
    if (ended)
        thread_.join();
    else
        thread_.detach();
}

bool SoundPlayer::Play(const QByteArray& wave) {
    auto sound = WaveData::Read(wave);
    const bool isFirst = !desk_;
    if (!sound || !Begin()) return false;
    {
        const std::lock_guard lock(desk_->mutex);
        desk_->newest = Sound{std::move(*sound), QDeadlineTimer(kLate)};
    }
    if (isFirst)
        QTimer::singleShot(kBehindTheWindow, [desk = desk_] { desk->server.Wake(); });
    else
        desk_->server.Wake();
    return desk_->server.Works();
}

bool SoundPlayer::Begin() {
    if (desk_) {
        if (std::unique_lock lock(desk_->mutex); !desk_->hasEnded) return true;
        thread_.join();
        desk_.reset();
    }
    try {
        auto desk = std::make_shared<Desk>();
        thread_ = std::thread(Work, desk);
        desk_ = std::move(desk);
    } catch (const std::system_error&) {
        return false;  // out of files or threads
    }
    return true;
}

void SoundPlayer::Work(const std::shared_ptr<Desk>& desk) {
    const bool starts = desk->server.Start();
    while (starts) {
        desk->server.AwaitEvent();
        std::unique_lock lock(desk->mutex);
        if (desk->toEnd) break;
        if (!desk->newest) continue;
        lock.unlock();
        std::this_thread::sleep_for(kBehindThePicture);
        lock.lock();
        Sound sound = *std::exchange(desk->newest, std::nullopt);
        lock.unlock();
        desk->server.Play(std::move(sound));
    }
    desk->server.Disconnect();
    const std::lock_guard lock(desk->mutex);
    desk->hasEnded = true;
    desk->end.notify_one();
}
