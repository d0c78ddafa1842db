#pragma once

#include <array>
#include <cstdint>

// The game that the demonstration plays.

// In DemoScriptMoves: the active card is locked. Any other entry is the cell 0..15 the pointer moves to.
inline constexpr std::int16_t kDemoLock = 100;

// What the pointer does, step by step. It begins and ends turns: the last entry is a lock.
extern const std::array<std::int16_t, 571> DemoScriptMoves;

// The kind of the active card in each turn; the one after it is shown as the next card meanwhile.
extern const std::array<std::int16_t, 162> DemoScriptCards;
