#pragma once

#include <array>
#include <cstdint>

// The game that the demonstration plays.

// In DemoScriptMoves: lock the active card. Any other entry is the cell 0..15 the pointer moves to.
inline constexpr std::int16_t kDemoLock = 100;

// The pointer's actions, step by step. The last one is a lock.
extern const std::array<std::int16_t, 571> DemoScriptMoves;

// The kind of the active card in each turn; the preview shows that of the following turn.
extern const std::array<std::int16_t, 162> DemoScriptCards;
