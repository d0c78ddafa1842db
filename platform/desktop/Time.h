#pragma once

#include <QDate>
#include <atomic>
#include <chrono>
#include <functional>
#include <memory>

// A repeating timer.
class Alarm {
public:
    virtual ~Alarm() = default;
    // Fires every `interval` from now on; restarts a running timer. Fires only when events are processed, and
    // several missed ticks fire once.
    virtual void Start(std::chrono::milliseconds interval) = 0;
    virtual void Stop() = 0;
};

// All waiting, pending-event processing and timing of the game, so that tests need no real time.
class Time {
public:
    virtual ~Time() = default;
    // Holds the thread for `duration`; no event is handled meanwhile.
    virtual void Wait(std::chrono::milliseconds duration) = 0;
    // Lets what is pending run: input, paints, due alarms.
    virtual void ProcessEvents() = 0;
    // Handles what is pending, but drops the input of the player.
    virtual void DropInput() = 0;
    // Runs `work` in a thread of its own while events are handled here; true when it has ended. After `most`
    // it goes on without anyone waiting, so it must own what it uses.
    virtual bool InBackground(std::function<void()> work, std::chrono::milliseconds most) = 0;
    // Today's date where the player is.
    [[nodiscard]] virtual QDate Today() const = 0;
    // An alarm, stopped at first, that calls `due`. It must not outlive this.
    [[nodiscard]] virtual std::unique_ptr<Alarm> NewAlarm(std::function<void()> due) = 0;
};

// The time of the clock on the wall.
class RealTime final : public Time {
public:
    void Wait(std::chrono::milliseconds duration) override;
    void ProcessEvents() override;
    void DropInput() override;
    bool InBackground(std::function<void()> work, std::chrono::milliseconds most) override;
    [[nodiscard]] QDate Today() const override;
    [[nodiscard]] std::unique_ptr<Alarm> NewAlarm(std::function<void()> due) override;
    // Whether work that nobody waits for any more still runs.
    [[nodiscard]] bool IsBusy() const { return *running_ > 0; }

private:
    std::shared_ptr<std::atomic<int>> running_ = std::make_shared<std::atomic<int>>(0);
};
