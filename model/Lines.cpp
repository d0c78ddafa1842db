#include "model/Lines.h"

#include "model/TableIndex.h"

namespace {

struct CellLines {
    std::array<LineCells, kMostLines> lines{};
    std::size_t count = 0;

    constexpr void Add(int firstCell, int step) {
        for (std::int16_t& cell : lines[count]) {
            cell = static_cast<std::int16_t>(firstCell);
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

using Element = decltype(&CardInfo::Quantity);

bool AllEqual(const LineCards& line, Element element) {
    return line[0].*element == line[1].*element && line[1].*element == line[2].*element &&
           line[2].*element == line[3].*element;
}

bool IsSeries(const LineCards& line, std::int32_t first, std::int32_t step) {
    return line[0].Quantity == first && line[1].Quantity == first + step &&
           line[2].Quantity == first + 2 * step && line[3].Quantity == first + 3 * step;
}

}  // namespace

std::span<const LineCells> LinesThrough(std::int16_t cell) noexcept {
    const CellLines& through = kLines[TableIndex(cell, kLines.size())];
    return {through.lines.data(), through.count};
}

std::int16_t SharedElements(const LineCards& line) noexcept {
    return static_cast<std::int16_t>(AllEqual(line, &CardInfo::AttrB) + AllEqual(line, &CardInfo::Quantity) +
                                     AllEqual(line, &CardInfo::AttrA) + IsSeries(line, 1, 1) +
                                     IsSeries(line, 4, -1));
}
