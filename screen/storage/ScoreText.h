#pragma once

#include <QString>
#include <cstdint>

// Parses a score in the digits of any script. One kind of separator may stand between groups of digits, the
// last of which has three, or two behind a space: 12,345 and 12.345 and 1,23,456 and 1 23 45 are integers in
// every locale, so a table reads the same after a change of locale. Any other text counts as 0; numbers
// beyond 32 bits saturate.
[[nodiscard]] std::int32_t ScoreFromText(const QString& text);
