#pragma once

#include <cstdint>

// A source of random numbers: the system's in the program, a scripted one in tests.
class RandomSource {
public:
    virtual ~RandomSource() = default;

    // Starts a new sequence, unlike those of earlier calls.
    virtual void Reseed() = 0;

    // A uniformly distributed integer, 0 .. count - 1. count: 1 or more (asserted).
    [[nodiscard]] virtual std::int16_t Below(std::int16_t count) = 0;
};
