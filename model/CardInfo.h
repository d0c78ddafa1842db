#pragma once

#include <array>
#include <cstdint>

// The value of all three attributes in an empty cell and on an eraser.
inline constexpr std::int32_t kNoCard = 5;

// One card: a row of the kinds table, or the contents of a board cell.
struct CardInfo {
    std::int16_t Number = 0;          // kind 0..38; in an emptied cell the cell's number, which no rule reads
    std::int32_t AttrA = kNoCard;     // first three-valued element 1..3: shape or colour, by skin
    std::int32_t AttrB = kNoCard;     // second three-valued element 1..3
    std::int32_t Quantity = kNoCard;  // number of symbols 1..4

    friend bool operator==(const CardInfo&, const CardInfo&) = default;
};

inline constexpr std::int16_t kCardKinds = 39;
inline constexpr std::int16_t kLastOrdinaryKind = 35;  // the kinds above it are erasers
inline constexpr std::int16_t kCoverKind = 36;         // the eraser whose picture also covers a hidden board

// The 39 kinds, kind 3 * i + j in row i and column j: all 3 x 3 x 4 combinations, then the erasers.
using CardKinds = std::array<std::array<CardInfo, 3>, 13>;
[[nodiscard]] CardKinds MakeCardKinds();
