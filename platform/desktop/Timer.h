#pragma once

#include "platform/desktop/Time.h"

// The timer control: while enabled, ticks every Interval milliseconds. Interval 0 never ticks; enabling, and
// a new interval while enabled, start the interval afresh.
class Timer {
public:
    Timer(Time& time, std::function<void()> tick, int interval = 1)
        : alarm_(time.NewAlarm(std::move(tick))), interval_(interval) {}

    [[nodiscard]] bool Enabled() const { return enabled_; }
    void Enabled(bool enabled) {
        if (enabled == enabled_) return;
        enabled_ = enabled;
        Apply();
    }
    [[nodiscard]] int Interval() const { return interval_; }
    void Interval(int milliseconds) {
        interval_ = milliseconds;
        if (enabled_) Apply();
    }
    // Pauses the ticks until it is re-enabled or given an interval; it stays enabled. For a timer whose ticks
    // no longer change anything, so that the CPU can sleep.
    void Rest() { alarm_->Stop(); }

private:
    void Apply() {
        if (enabled_ && interval_ > 0)
            alarm_->Start(std::chrono::milliseconds(interval_));
        else
            alarm_->Stop();
    }

    std::unique_ptr<Alarm> alarm_;
    int interval_;
    bool enabled_ = false;
};
