#include "platform/Timer.h"

#include <gtest/gtest.h>

#include "tests/support/VirtualTime.h"

using namespace std::chrono_literals;

TEST(Timer, TicksByItsRules) {
    const std::tuple<const char*, std::function<void(Timer&, VirtualTime&)>, int> cases[] = {
        {"disabled: never", [](Timer&, VirtualTime& t) { t.Pass(1h); }, 0},
        {"every interval",
         [](Timer& a, VirtualTime& t) { a.Enabled(true), t.Pass(99ms), t.Pass(1ms), t.Pass(100ms); }, 2},
        {"interval 0: never", [](Timer& a, VirtualTime& t) { a.Interval(0), a.Enabled(true), t.Pass(1h); },
         0},
        {"enabling again starts afresh",
         [](Timer& a, VirtualTime& t) {
             a.Enabled(true), t.Pass(60ms), a.Enabled(false), a.Enabled(true), t.Pass(60ms);
         },
         0},
        {"enabling what is enabled changes nothing",
         [](Timer& a, VirtualTime& t) { a.Enabled(true), t.Pass(60ms), a.Enabled(true), t.Pass(60ms); }, 1},
        {"a new interval starts afresh",
         [](Timer& a, VirtualTime& t) { a.Enabled(true), t.Pass(60ms), a.Interval(50), t.Pass(49ms); }, 0},
        {"at rest: never", [](Timer& a, VirtualTime& t) { a.Enabled(true), a.Rest(), t.Pass(1h); }, 0},
        {"enabled again after a rest",
         [](Timer& a, VirtualTime& t) {
             a.Enabled(true), a.Rest(), a.Enabled(false), a.Enabled(true), t.Pass(100ms);
         },
         1},
        {"several missed: once, late",
         [](Timer& a, VirtualTime& t) { a.Enabled(true), t.Wait(1s), t.Pass(0ms); }, 1},
    };
    for (const auto& [what, run, expected] : cases) {
        VirtualTime time;
        int ticks = 0;
        const auto tick = [&ticks] { ++ticks; };
        Timer timer(time, tick, 100);
        run(timer, time);
        EXPECT_EQ(ticks, expected) << what;
    }
}
