#include "shell/ClockRandom.h"

#include <cassert>
#include <chrono>

ClockRandom::ClockRandom() {
    std::random_device device;
    secret_ = std::uint64_t{device()} << 32 | device();
    Reseed();
}

void ClockRandom::Reseed() {
    const auto now = std::chrono::system_clock::now().time_since_epoch().count();
    constexpr std::uint64_t kOddStep = 0x9E3779B97F4A7C15;  // every count gives another product
    generator_.seed(secret_ ^ (static_cast<std::uint64_t>(now) + ++sequences_ * kOddStep));
}

std::int16_t ClockRandom::Below(std::int16_t count) {
    assert(count > 0);
    if (count <= 1) return 0;
    return std::uniform_int_distribution<std::int16_t>(0, static_cast<std::int16_t>(count - 1))(generator_);
}
