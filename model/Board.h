#pragma once

#include <cstdint>

// The board's dimensions. Cells are numbered row * 4 + column, row 0 at the top.
inline constexpr std::int16_t kSide = 4;  // cells in a row, in a column and in every line
inline constexpr std::int16_t kCells = kSide * kSide;
inline constexpr std::int16_t kStartCell = 12;  // bottom left, where each new active card appears
