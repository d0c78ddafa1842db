#pragma once

#include <algorithm>
#include <cassert>
#include <cstddef>
#include <cstdint>

// `value` as the index of a table with `rows` rows (1 or more). A value outside it is a mistake of ours:
// asserted; a release build takes the nearest row, so that nothing is ever read beside a table.
[[nodiscard]] constexpr std::size_t TableIndex(std::int16_t value, std::size_t rows) noexcept {
    assert(value >= 0 && static_cast<std::size_t>(value) < rows);
    return std::min(static_cast<std::size_t>(std::max<std::int16_t>(value, 0)), rows - 1);
}
