#include "screen/storage/ScoreText.h"

#include <algorithm>
#include <limits>
#include <string_view>

namespace {

constexpr std::int64_t kMost = std::numeric_limits<std::int32_t>::max();

bool IsDigit(char32_t c) {
    return QChar::category(c) == QChar::Number_DecimalDigit;
}

bool IsSpace(char32_t c) {
    return QChar::category(c) == QChar::Separator_Space;
}

// Comma, full stop, apostrophes, underscore, the commas of Arabic, N'Ko and Fulah, a letter of Geez, and
// spaces of any width.
bool IsGroupMark(char32_t c) {
    constexpr std::u32string_view marks = U",.'\u2019_\u066C\u060C\u2E41\u12C8";
    return marks.find(c) != marks.npos || IsSpace(c);
}

// The first group has one to four digits (some locales write 2147.483.647), those between two marks have two
// or three.
bool EndsGroup(int digits, bool first) {
    return first ? digits >= 1 && digits <= 4 : digits == 2 || digits == 3;
}

}  // namespace

std::int32_t ScoreFromText(const QString& text) {
    std::int64_t number = 0;
    int digits = 0;     // in the group so far
    char32_t mark = 0;  // between the groups
    for (const char32_t c : text.trimmed().toStdU32String()) {
        if (IsDigit(c)) {
            number = std::min(number * 10 + QChar::digitValue(c), kMost);
            ++digits;
        } else if (IsGroupMark(c) && (mark == 0 || c == mark) && EndsGroup(digits, mark == 0)) {
            mark = c;
            digits = 0;
        } else {
            return 0;
        }
    }
    // Toki Pona writes pairs: 1 23 45. No locale writes a fraction behind a space.
    const bool complete = mark == 0 || digits == 3 || (digits == 2 && IsSpace(mark));
    return complete ? static_cast<std::int32_t>(number) : 0;
}
