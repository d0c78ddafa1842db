#pragma once

#include <algorithm>
#include <vector>

#include "platform/desktop/Time.h"

// Time that passes only when told to. Alarms fall due as the real ones do: in the order of their times, never
// inside a handler that does not process events, and once, late, when several were missed.
class VirtualTime final : public Time {
public:
    using Milliseconds = std::chrono::milliseconds;

    void Wait(Milliseconds duration) override { now_ += duration; }
    void ProcessEvents() override { onProcessEvents(), Pass(Milliseconds(0)); }
    void DropInput() override { onDropInput(), Pass(Milliseconds(0)); }
    bool InBackground(std::function<void()> work, Milliseconds /*most*/) override {
        work(), onBackground();
        return true;
    }
    QDate Today() const override { return {2026, 11, 24}; }
    std::unique_ptr<Alarm> NewAlarm(std::function<void()> due) override {
        return std::make_unique<VirtualAlarm>(*this, std::move(due));
    }

    // Lets `duration` pass with nothing else happening; what waits inside a handler comes on top.
    void Pass(Milliseconds duration) {
        const Milliseconds end = now_ + duration;
        while (VirtualAlarm* next = NextDue(end)) {
            now_ = std::max(now_, next->due);
            next->Ring(now_);
        }
        now_ = std::max(now_, end);
    }
    [[nodiscard]] Milliseconds Now() const { return now_; }

    std::function<void()> onDropInput = [] {}, onBackground = [] {};
    std::function<void()> onProcessEvents = [] {};  // what else happens when the game lets events run

private:
    struct VirtualAlarm final : Alarm {
        VirtualAlarm(VirtualTime& itsTime, std::function<void()> itsRing)
            : time(itsTime), ring(std::move(itsRing)) {
            time.alarms_.push_back(this);
        }
        ~VirtualAlarm() override { std::erase(time.alarms_, this); }
        void Start(Milliseconds every) override { interval = every, due = time.now_ + every, running = true; }
        void Stop() override { running = false; }
        void Ring(Milliseconds now) {
            due = (due + interval < now ? now : due) + interval;
            inside = true;
            ring();
            inside = false;
        }

        VirtualTime& time;
        std::function<void()> ring;
        Milliseconds interval{}, due{};
        bool running = false, inside = false;
    };

    VirtualAlarm* NextDue(Milliseconds end) {
        VirtualAlarm* next = nullptr;
        for (VirtualAlarm* alarm : alarms_)
            if (alarm->running && !alarm->inside && alarm->due <= end && (!next || alarm->due < next->due))
                next = alarm;
        return next;
    }

    Milliseconds now_{0};
    std::vector<VirtualAlarm*> alarms_;
};
