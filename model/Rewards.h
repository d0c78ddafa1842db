#pragma once

#include <cstdint>

// What a lock that completes lines earns.
struct Reward {
    std::int32_t points;      // before they are multiplied by the cards on the board and the level's factor
    std::int16_t bonusCards;  // given back to the stack
    std::int16_t sound;       // the built-in sound it makes; 0 for the row that earns nothing
};

// sharedElements: the total over all lines of one lock, 0 or more (asserted).
[[nodiscard]] const Reward& RewardFor(std::int16_t sharedElements) noexcept;
