#include "platform/sound/SoundServer.h"

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>
#include <utility>

#include "platform/sound/Pulse.h"

namespace {

// How far ahead the server buffers. Short, so that a sound that is cut off ends at once.
constexpr pa_usec_t kAhead = 40 * PA_USEC_PER_MSEC;
constexpr auto kServersChoice = static_cast<std::uint32_t>(-1);

pa_sample_spec Format(const WaveData& wave) {
    return {wave.bits == 8 ? PA_SAMPLE_U8 : PA_SAMPLE_S16LE, static_cast<std::uint32_t>(wave.rate),
            static_cast<std::uint8_t>(wave.channels)};
}

pa_buffer_attr Buffer(const pa_sample_spec& format) {
    pa_buffer_attr buffer{};
    buffer.maxlength = buffer.prebuf = buffer.minreq = buffer.fragsize = kServersChoice;
    buffer.tlength = static_cast<std::uint32_t>(PULSE(usec_to_bytes)(kAhead, &format));
    return buffer;
}

bool IsOpening(const pa_stream* stream) {
    return stream && PULSE(stream_get_state)(stream) == PA_STREAM_CREATING;
}

}  // namespace

// pa_mainloop_wakeup loses a wake-up that comes just before the loop goes to sleep; a pipe does not.
SoundServer::SoundServer() {
    if (pipe2(bell_.data(), O_NONBLOCK | O_CLOEXEC) != 0)
        throw std::system_error(errno, std::generic_category());
}

bool SoundServer::Start() {
    pollfd ring{bell_[0], POLLIN, 0};
    poll(&ring, 1, -1);
    loop_ = Pulse() ? PULSE(mainloop_new)() : nullptr;
    if (!loop_) return false;
    const auto silence = [](pa_mainloop_api*, pa_io_event*, int bell, pa_io_event_flags_t, void*) {
        std::array<char, 64> rings{};
        while (read(bell, rings.data(), rings.size()) > 0) continue;
    };
    pa_mainloop_api* const api = PULSE(mainloop_get_api)(loop_);
    api->io_new(api, bell_[0], PA_IO_EVENT_INPUT, silence, nullptr);
    return true;
}

SoundServer::~SoundServer() {
    Disconnect();
    if (loop_) PULSE(mainloop_free)(loop_);
    for (const int end : bell_) close(end);
}

void SoundServer::AwaitEvent() {
    PULSE(mainloop_iterate)(loop_, 1, nullptr);
}

void SoundServer::Wake() {
    // A full pipe rings already.
    [[maybe_unused]] const auto written = write(bell_[1], "", 1);
}

void SoundServer::Play(Sound sound) {
    next_ = std::move(sound);
    if (context_ && PA_CONTEXT_IS_GOOD(PULSE(context_get_state)(context_)))
        StartNext();
    else
        Connect();
}

void SoundServer::Connect() {
    Disconnect();
    context_ = PULSE(context_new)(PULSE(mainloop_get_api)(loop_), "Tesselor");
    if (!context_) return GiveUp();  // it needs 64 MB of address space
    const auto changed = [](pa_context*, void* self) { static_cast<SoundServer*>(self)->ContextChanged(); };
    PULSE(context_set_state_callback)(context_, changed, this);
    if (PULSE(context_connect)(context_, nullptr, PA_CONTEXT_NOFLAGS, nullptr) < 0) GiveUp();
}

void SoundServer::Disconnect() {
    CloseStream();
    if (!context_) return;
    PULSE(context_set_state_callback)(context_, nullptr, nullptr);
    PULSE(context_disconnect)(context_);
    PULSE(context_unref)(std::exchange(context_, nullptr));
}

void SoundServer::ContextChanged() {
    if (!PA_CONTEXT_IS_GOOD(PULSE(context_get_state)(context_))) return GiveUp();
    StartNext();
}

// A stream cannot be cancelled while it is being opened, so the next sound waits: at most one request is
// pending, however slow the server is and however many sounds arrive meanwhile.
void SoundServer::StartNext() {
    if (!next_ || PULSE(context_get_state)(context_) != PA_CONTEXT_READY || IsOpening(stream_)) return;
    CloseStream();
    sound_ = *std::exchange(next_, std::nullopt);
    if (!sound_.late.hasExpired()) OpenStream();
}

void SoundServer::OpenStream() {
    const pa_sample_spec format = Format(sound_.wave);
    const pa_buffer_attr buffer = Buffer(format);
    stream_ = PULSE(stream_new)(context_, "sound", &format, nullptr);
    if (!stream_) return GiveUp();
    const auto changed = [](pa_stream*, void* self) { static_cast<SoundServer*>(self)->StreamChanged(); };
    PULSE(stream_set_state_callback)(stream_, changed, this);
    if (PULSE(stream_connect_playback)(stream_, nullptr, &buffer, PA_STREAM_ADJUST_LATENCY, nullptr,
                                       nullptr) < 0)
        GiveUp();
}

void SoundServer::StreamChanged() {
    const pa_stream_state_t state = PULSE(stream_get_state)(stream_);
    if (!PA_STREAM_IS_GOOD(state)) return GiveUp();
    if (state != PA_STREAM_READY) return;
    works_ = true;
    if (next_) return StartNext();
    if (sound_.late.hasExpired()) return CloseStream();
    WriteAll();
}

// Sends the whole sound at once: the server buffers it, and the thread can sleep until it has been played.
void SoundServer::WriteAll() {
    const QByteArray& samples = sound_.wave.samples;
    const auto size = static_cast<std::size_t>(samples.size());
    if (PULSE(stream_write)(stream_, samples.constData(), size, nullptr, 0, PA_SEEK_RELATIVE) < 0)
        return GiveUp();
    const auto heard = [](pa_stream* stream, int, void* self) {
        auto* const server = static_cast<SoundServer*>(self);
        if (stream == server->stream_) server->CloseStream();
    };
    if (pa_operation* draining = PULSE(stream_drain)(stream_, heard, this)) PULSE(operation_unref)(draining);
}

void SoundServer::CloseStream() {
    if (!stream_) return;
    PULSE(stream_set_state_callback)(stream_, nullptr, nullptr);
    PULSE(stream_disconnect)(stream_);
    PULSE(stream_unref)(std::exchange(stream_, nullptr));
}

void SoundServer::GiveUp() {
    works_ = false;
    next_.reset();
    CloseStream();
}
