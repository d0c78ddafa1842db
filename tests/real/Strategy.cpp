#include "tests/real/Strategy.h"

#include "model/CardInfo.h"
#include "model/Lines.h"

namespace {

constexpr int kEraser = 36;

CardInfo Card(int kind) {
    if (kind < 0 || kind >= kEraser) return {};
    const CardKinds kinds = MakeCardKinds();
    return kinds[static_cast<std::size_t>(kind / 3)][static_cast<std::size_t>(kind % 3)];
}

}  // namespace

int SharedBy(const SeenBoard& board, int kind, int cell) {
    int total = 0;
    for (const LineCells& cells : LinesThrough(static_cast<std::int16_t>(cell))) {
        LineCards line;
        for (std::size_t i = 0; i < cells.size(); ++i)
            line[i] = Card(cells[i] == cell ? kind : board[static_cast<std::size_t>(cells[i])]);
        total += SharedElements(line);
    }
    return total;
}

int CheapCell(const SeenBoard& board, int kind) {
    int best = -1, bestWorth = -1000;
    for (int cell = 0; cell < 16; ++cell) {
        const bool taken = board[static_cast<std::size_t>(cell)] >= 0;
        if (kind >= kEraser ? !taken && best >= 0 : taken) continue;
        const int shared = kind >= kEraser ? 0 : SharedBy(board, kind, cell);
        int worth = shared == 1 ? 10 : -shared;
        for (const LineCells& cells : LinesThrough(static_cast<std::int16_t>(cell))) {
            bool sameColour = kind < kEraser;
            int neighbours = 0;
            for (const std::int16_t other : cells) {
                const int card = board[static_cast<std::size_t>(other)];
                if (other == cell || card < 0) continue;
                ++neighbours;
                sameColour = sameColour && card % 3 == kind % 3;
            }
            worth += sameColour ? neighbours : -neighbours;
        }
        if (worth > bestWorth) best = cell, bestWorth = worth;
    }
    return best;
}

int FirstFreeCell(const SeenBoard& board) {
    int cell = 0;
    while (cell < 15 && board[static_cast<std::size_t>(cell)] != -1) ++cell;
    return cell;
}
