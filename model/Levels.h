#pragma once

#include <cstdint>

inline constexpr std::int16_t kLevels = 5;  // 0 practice, 1 junior, 2 senior, 3 expert, 4 master

// Time to lock a card, in milliseconds; 0 means no limit. Falls linearly from the level's start time on
// an empty board to its end time on a full one; computed in single precision, rounding half to even.
// level: 0..4, cardsLocked: 0..16 cards on the board (asserted; clamped in a release build).
[[nodiscard]] std::int16_t LockTime(std::int16_t level, std::int16_t cardsLocked) noexcept;

// The multiplier for the points of a scoring lock. level: as above.
[[nodiscard]] std::int16_t LevelFactor(std::int16_t level) noexcept;
