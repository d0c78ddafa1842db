#pragma once

#include <QString>

class frmGame;

// What the screen shows, as one would say it. All of it is read off the screen, never off the rules: nobody
// is told what others cannot see, such as a board hidden by a pause.

// "shape 2, colour 3, quantity 4", or "eraser". kind: 0..38.
[[nodiscard]] QString CardInWords(int kind);
// "row 4, column 1". cell: 0..15.
[[nodiscard]] QString PlaceInWords(int cell);
// Whether the red frame of the active card is on `cell`.
[[nodiscard]] bool IsActive(const frmGame& form, int cell);
// Whether `cell` shows a card that lies there for good: neither the active one nor the cover.
[[nodiscard]] bool IsLocked(const frmGame& form, int cell);
