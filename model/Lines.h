#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

#include "model/Board.h"
#include "model/CardInfo.h"

// The cells of one line in the order in which a series is read: a column from the top, a row from the left,
// the main diagonal from the top left, the anti-diagonal from the bottom left.
using LineCells = std::array<std::uint8_t, kSide>;
// The cards of one line, in the same order; none is null.
using LineCards = std::array<const CardInfo*, kSide>;

// No cell lies on both diagonals.
inline constexpr std::size_t kMostLines = 3;

// The lines through `cell` (0..15, asserted), always in the order column, row, main diagonal, anti-diagonal,
// the diagonals only where the cell lies on them: two or three lines. Any two of them share only that cell.
[[nodiscard]] std::span<const LineCells> LinesThrough(std::int16_t cell) noexcept;

// The elements that the four cards share, 0..3: one for each of equal AttrA, equal AttrB, equal Quantity and
// the quantities 1 2 3 4 read either way. At least one of the cells must hold a card; gaps share nothing.
[[nodiscard]] std::int16_t SharedElements(const LineCards& line) noexcept;
