#pragma once

#include <array>

// What players of the tests know of the game: the kinds 0..35 that lie on the board, by cell; -1 where
// nothing lies.
using SeenBoard = std::array<int, 16>;

// How many elements a lock of the card `kind` in `cell` would make lines share.
[[nodiscard]] int SharedBy(const SeenBoard& board, int kind, int cell);

// The cell of a player who wants the cards to end: clears lines as cheaply as possible, erases what stands in
// the way.
[[nodiscard]] int CheapCell(const SeenBoard& board, int kind);

// The first free cell, or the last one of a full board: the quickest way to an end.
[[nodiscard]] int FirstFreeCell(const SeenBoard& board);
