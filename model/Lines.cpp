#include "model/Lines.h"

#include "model/TableIndex.h"

namespace {

struct CellLines {
    std::array<LineCells, kMostLines> lines{};
    std::size_t count = 0;

    constexpr void Add(int firstCell, int step) {
        for (std::uint8_t& cell : lines[count]) {
            cell = static_cast<std::uint8_t>(firstCell);
            firstCell += step;
        }
        ++count;
    }
};

constexpr CellLines MakeLinesThrough(int row, int column) {
    CellLines through;
    through.Add(column, kSide);
    through.Add(row * kSide, 1);
    if (row == column) through.Add(0, kSide + 1);
    if (row + column == kSide - 1) through.Add(kCells - kSide, 1 - kSide);
    return through;
}

constexpr std::array<CellLines, kCells> kLines = [] {
    std::array<CellLines, kCells> all;
    for (int cell = 0; cell < kCells; ++cell)
        all[static_cast<std::size_t>(cell)] = MakeLinesThrough(cell / kSide, cell % kSide);
    return all;
}();

using Element = std::int32_t CardInfo::*;
// One element of the four cards.
using Elements = std::array<std::int32_t, kSide>;

Elements ElementsOf(const LineCards& line, Element element) {
    return {line[0]->*element, line[1]->*element, line[2]->*element, line[3]->*element};
}

// Compares all four before it decides: a processor would guess wrongly on random cards.
bool Same(const Elements& these, const Elements& those) {
    return ((these[0] ^ those[0]) | (these[1] ^ those[1]) | (these[2] ^ those[2]) | (these[3] ^ those[3])) ==
           0;
}

bool AllEqual(const Elements& elements) {
    const std::int32_t first = elements[0];
    return Same(elements, {first, first, first, first});
}

}  // namespace

std::span<const LineCells> LinesThrough(std::int16_t cell) noexcept {
    const CellLines& through = kLines[TableIndex(cell, kLines.size())];
    return {through.lines.data(), through.count};
}

std::int16_t SharedElements(const LineCards& line) noexcept {
    const Elements quantities = ElementsOf(line, &CardInfo::Quantity);
    return static_cast<std::int16_t>(AllEqual(ElementsOf(line, &CardInfo::AttrA)) +
                                     AllEqual(ElementsOf(line, &CardInfo::AttrB)) + AllEqual(quantities) +
                                     Same(quantities, {1, 2, 3, 4}) + Same(quantities, {4, 3, 2, 1}));
}
