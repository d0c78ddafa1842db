#include "model/Rewards.h"

#include <algorithm>
#include <array>

#include "model/TableIndex.h"

// By shared elements; the last row covers all higher totals.
static constexpr std::array<Reward, 6> kRewards{{
    {0, 0, 0},
    {10, 1, 106},
    {50, 5, 107},
    {200, 17, 108},
    {500, 26, 109},
    {1000, 51, 110},
}};

const Reward& RewardFor(std::int16_t sharedElements) noexcept {
    constexpr std::int16_t lastRow = kRewards.size() - 1;
    return kRewards[TableIndex(std::min(sharedElements, lastRow), kRewards.size())];
}
