#pragma once

#include <QRect>

// Where a player finds the controls in the game window, in logical pixels from its corner.
namespace Spot {

inline constexpr QRect kHelp(348, 106, 39, 38), kScore(348, 154, 39, 37), kMenu(348, 198, 39, 38),
    kPlay(348, 244, 37, 36);
inline constexpr QRect kMinimise(355, 2, 17, 19), kExit(376, 2, 17, 19);
inline constexpr QRect kMore(266, 72, 40, 22);  // the pill at the corner of the help screen
inline constexpr QRect kMoreButton(108, 284, 51, 23), kDemo(204, 284, 51, 23);
inline constexpr QPoint kBackground(345, 80);  // nothing that answers the mouse

// level: 0..4, practice to master.
constexpr QRect Level(int level) {
    return {86, 105 + 24 * level, 70, 18};
}
// slot: 0..11.
constexpr QRect Slot(int slot) {
    return {172 + slot % 3 * 42, 100 + slot / 3 * 44, 39, 41};
}
// The drawing area of a board cell, 0..15.
constexpr QRect Cell(int cell) {
    return {53 + cell % 4 * 66, 63 + cell / 4 * 66, 60, 60};
}

}  // namespace Spot
