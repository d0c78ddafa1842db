#pragma once

#include <random>

#include "model/RandomSource.h"

// The program's random numbers. Each fresh sequence mixes the clock with a count and a secret of this run, so
// that no two are the same even when the clock has not moved between them.
class ClockRandom final : public RandomSource {
public:
    ClockRandom();
    void Reseed() override;
    [[nodiscard]] std::int16_t Below(std::int16_t count) override;

private:
    std::uint64_t secret_;
    std::uint64_t sequences_ = 0;
    std::mt19937_64 generator_;
};
