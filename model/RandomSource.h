#pragma once

#include <cstdint>

// Where random numbers come from. The program has one seeded from the clock; tests script it.
class RandomSource {
public:
    virtual ~RandomSource() = default;

    // Starts a fresh sequence from the clock; two calls never start the same one, even within a clock tick.
    virtual void Reseed() = 0;

    // A whole number 0 .. count - 1, each equally likely. count: 1 or more (asserted).
    [[nodiscard]] virtual std::int16_t Below(std::int16_t count) = 0;
};
