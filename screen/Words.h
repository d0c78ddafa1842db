#pragma once

#include <QString>
#include <cstdint>
#include <functional>

#include "model/Board.h"

class frmGame;

// Accessible names, computed from the state of the game and the window. They describe only what is on screen:
// covered cells are "covered".

// As players count them, from 1. cell: 0..15.
[[nodiscard]] constexpr int RowOf(int cell) {
    return cell / kSide + 1;
}
[[nodiscard]] constexpr int ColumnOf(int cell) {
    return cell % kSide + 1;
}

// "shape 2, colour 3, quantity 4", or "eraser". kind: 0..38.
[[nodiscard]] QString CardInWords(int kind);
// "Row 4, column 1: empty". cell: 0..15.
[[nodiscard]] QString CellInWords(const frmGame& form, std::int16_t cell);
[[nodiscard]] QString NextCardInWords(const frmGame& form);
[[nodiscard]] QString BoardInWords(const frmGame& form);
// The skin of a slot, 0..11.
[[nodiscard]] QString SkinInWords(const frmGame& form, std::int16_t slot);

// A constant accessible name.
[[nodiscard]] std::function<QString()> Fixed(const QString& text);
