#pragma once

#include <QRandomGenerator>

#include "model/RandomSource.h"

// Random numbers from the system, which no seed can repeat.
class SystemRandom final : public RandomSource {
public:
    void Reseed() override {}
    [[nodiscard]] std::int16_t Below(std::int16_t count) override {
        return static_cast<std::int16_t>(QRandomGenerator::system()->bounded(int{count}));
    }
};
