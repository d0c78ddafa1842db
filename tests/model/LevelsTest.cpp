#include "model/Levels.h"

#include <gtest/gtest.h>

// Worked out by hand from the levels' start and end times: a sixteenth of their difference a card.
TEST(Levels, LockTimeShrinksAsTheBoardFills) {
    constexpr std::int16_t cases[][6] = {
        // cards, then by level
        {0, 0, 10000, 6000, 3800, 2200}, {16, 0, 7000, 4000, 1700, 1500},
        {15, 0, 7188, 4125, 1831, 1544},  // 7187.5: the even one is above
        {1, 0, 9812, 5875, 3669, 2156},   // 9812.5: the even one is below
        {2, 0, 9625, 5750, 3538, 2112},   // in single precision 3537.5 and 2112.5
    };
    for (const auto& c : cases)
        for (std::int16_t level = 0; level < 5; ++level)
            EXPECT_EQ(LockTime(level, c[0]), c[level + 1]) << c[0] << " cards at level " << level;
}
