#pragma once

#include <cstdint>

// Where random numbers come from. The program's are the system's; tests script theirs.
class RandomSource {
public:
    virtual ~RandomSource() = default;

    // Starts a fresh sequence, which no other call has started.
    virtual void Reseed() = 0;

    // A whole number 0 .. count - 1, each equally likely. count: 1 or more (asserted).
    [[nodiscard]] virtual std::int16_t Below(std::int16_t count) = 0;
};
