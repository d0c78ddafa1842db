#pragma once

#include <QString>
#include <cstdint>
#include <functional>

class frmGame;

// What the screen shows, in words, told from the state of the game and the window. What is covered is said to
// be covered: nobody is told what others cannot see.

// "shape 2, colour 3, quantity 4", or "eraser". kind: 0..38.
[[nodiscard]] QString CardInWords(int kind);
// "row 4, column 1". cell: 0..15.
[[nodiscard]] QString PlaceInWords(int cell);
[[nodiscard]] QString CellInWords(const frmGame& form, std::int16_t cell);
[[nodiscard]] QString NextCardInWords(const frmGame& form);
[[nodiscard]] QString BoardInWords(const frmGame& form);
// The skin of a slot, 0..11.
[[nodiscard]] QString SkinInWords(const frmGame& form, std::int16_t slot);

// Words that never change, as a description of a control wants them.
[[nodiscard]] std::function<QString()> Fixed(const char* text);
