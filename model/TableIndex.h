#pragma once

#include <algorithm>
#include <cassert>
#include <cstddef>
#include <cstdint>

// `value` as an index into a table of `rows` rows (1 or more). An index out of range is a bug: asserted, and
// clamped in a release build, so nothing is ever read out of bounds.
[[nodiscard]] constexpr std::size_t TableIndex(std::int16_t value, std::size_t rows) noexcept {
    assert(value >= 0 && static_cast<std::size_t>(value) < rows);
    return std::min(static_cast<std::size_t>(std::max<std::int16_t>(value, 0)), rows - 1);
}
