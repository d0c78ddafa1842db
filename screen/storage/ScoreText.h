#pragma once

#include <QString>
#include <cstdint>

// The number a score's text stands for, in the digits of any script. One kind of mark may stand between its
// groups of digits, the last of which has three: 12,345 and 12.345 and 1,23,456 are whole numbers whatever
// the desktop is set to, so a table reads the same when that changes. Text that is no such number counts as
// 0, a number beyond 32 bits as the largest.
[[nodiscard]] std::int32_t ScoreFromText(const QString& text);
