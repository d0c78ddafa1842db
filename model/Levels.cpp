#include "model/Levels.h"

#include <array>
#include <cstddef>

#include "model/Board.h"
#include "model/TableIndex.h"

namespace {

// By level; times in seconds. Practice has no limit.
constexpr std::array<float, kLevels> ArrStartTime{0.0F, 10.0F, 6.0F, 3.8F, 2.2F};
constexpr std::array<float, kLevels> ArrEndTime{0.0F, 7.0F, 4.0F, 1.7F, 1.5F};
constexpr std::array<std::int16_t, kLevels> ArrLevelFactor{1, 2, 2, 5, 7};

// Rounds half to even. value: 0 or more.
constexpr std::int16_t RoundToEven(float value) {
    const auto whole = static_cast<std::int16_t>(value);
    const float rest = value - static_cast<float>(whole);
    const bool up = rest > 0.5F || (rest == 0.5F && whole % 2 != 0);
    return static_cast<std::int16_t>(whole + (up ? 1 : 0));
}

constexpr std::int16_t WorkOutLockTime(std::size_t level, std::size_t cardsLocked) {
    const float timeStep = (ArrStartTime[level] - ArrEndTime[level]) / static_cast<float>(kCells);
    const float lost = static_cast<float>(cardsLocked) * timeStep;
    const float seconds = ArrStartTime[level] - lost;
    const float milliseconds = 1000.0F * seconds;
    return RoundToEven(milliseconds);
}

using LockTimes = std::array<std::array<std::int16_t, kCells + 1>, kLevels>;

consteval LockTimes MakeLockTimes() {
    LockTimes times{};
    for (std::size_t level = 0; level < times.size(); ++level)
        for (std::size_t cards = 0; cards < times[level].size(); ++cards)
            times[level][cards] = WorkOutLockTime(level, cards);
    return times;
}

// Computed at compile time, where every step is rounded to single precision: at run time, a fused
// multiply-subtract or another rounding mode would shift the ties.
constexpr LockTimes kLockTimes = MakeLockTimes();

}  // namespace

std::int16_t LockTime(std::int16_t level, std::int16_t cardsLocked) noexcept {
    return kLockTimes[TableIndex(level, kLevels)][TableIndex(cardsLocked, kCells + 1)];
}

std::int16_t LevelFactor(std::int16_t level) noexcept {
    return ArrLevelFactor[TableIndex(level, kLevels)];
}
