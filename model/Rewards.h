#pragma once

#include <cstdint>

// The reward for a lock that completes lines.
struct Reward {
    std::int32_t points;      // before multiplication by the cards on the board and the level's factor
    std::int16_t bonusCards;  // returned to the stack
    std::int16_t sound;       // a built-in sound; 0 in the row that earns nothing
};

// sharedElements: the total over all lines of one lock, 0 or more (asserted).
[[nodiscard]] const Reward& RewardFor(std::int16_t sharedElements) noexcept;
