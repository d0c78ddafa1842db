#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>
#include <set>
#include <string>
#include <string_view>

#include "model/RandomSource.h"
#include "tests/support/ModelScreen.h"

namespace {

struct SeededRandom : RandomSource {
    std::mt19937_64 engine;

    explicit SeededRandom(unsigned seed) : engine(seed) {}
    void Reseed() override {}
    std::int16_t Below(std::int16_t count) override {
        return std::uniform_int_distribution<std::int16_t>(0, static_cast<std::int16_t>(count - 1))(engine);
    }
};

struct Player : ModelScreen {
    SeededRandom random;
    clsCard card{*this, random};
    std::int16_t locked = -1;

    explicit Player(unsigned seed) : random(seed) { game = &card; }
    void Saw(std::string_view request, std::int64_t first, std::int64_t) override {
        if (request == "StartNextTurn") locked = static_cast<std::int16_t>(first);
    }
    void Step() {
        constexpr std::array keys{kKeyLock, kKeyLock, kKeyLeft, kKeyUp, kKeyRight, kKeyDown};
        const auto choice = static_cast<std::size_t>(random.Below(7));
        choice < keys.size() ? card.MoveCard(keys[choice]) : card.PutInRndPlace();
    }
};

using Board = std::array<CardInfo, 16>;

Board Read(const clsCard& card) {
    Board board;
    for (std::int16_t cell = 0; cell < 16; ++cell) board[static_cast<std::size_t>(cell)] = card.CardAt(cell);
    return board;
}

int Occupied(const Board& board) {
    return static_cast<int>(std::ranges::count_if(board, [](const CardInfo& c) { return c.Quantity != 5; }));
}

// Another way to what the model does: by sets and words. Removes the complete lines.
int TakeLines(Board& board, std::size_t locked) {
    constexpr std::string_view names = "0123456789abcdef";
    const Board cards = board;
    int total = 0;
    for (const std::string_view line :
         {"0123", "4567", "89ab", "cdef", "048c", "159d", "26ae", "37bf", "05af", "c963"}) {
        if (line.find(names[locked]) == line.npos) continue;
        std::set<int> a, b, quantities;
        std::string series;
        for (const char cell : line) {
            const CardInfo& card = cards[names.find(cell)];
            a.insert(card.AttrA), b.insert(card.AttrB), quantities.insert(card.Quantity);
            series += std::to_string(card.Quantity);
        }
        const int shared = (a.size() == 1) + (b.size() == 1) + (quantities.size() == 1) +
                           (series == "1234" || series == "4321");
        for (const char cell : line)
            if (shared > 0) board[names.find(cell)] = CardInfo();
        total += shared;
    }
    return total;
}

}  // namespace

TEST(RandomGames, KeepTheirInvariants) {
    constexpr std::array<int, 6> points{0, 10, 50, 200, 500, 1000};
    for (unsigned seed = 1; seed <= 300; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        Player player(seed);
        clsCard& card = player.card;
        card.SetLevel(3);
        card.NewGame();
        while (player.gamesOver == 0) {
            Board expected = Read(card);
            const int kind = card.CurrentCard();
            const std::int32_t score = card.Score();
            player.locked = -1;
            player.Step();
            ASSERT_EQ(card.CardsInMatrix(), Occupied(Read(card)));
            ASSERT_GE(card.Score(), score);
            if (player.locked < 0) continue;
            const auto locked = static_cast<std::size_t>(player.locked);
            ASSERT_EQ(expected[locked].Quantity, 5);
            expected[locked] = {0, kind / 12 + 1, kind % 3 + 1, kind / 3 % 4 + 1};
            const int cards = Occupied(expected);
            const int shared = TakeLines(expected, locked);
            ASSERT_EQ(card.Score() - score,
                      points[static_cast<std::size_t>(std::min(shared, 5))] * cards * 5);
            ASSERT_EQ(Occupied(expected), card.CardsInMatrix());
        }
        ASSERT_TRUE(card.CardsInMatrix() == 16 || card.CardsUsed() == 100);
    }
}

TEST(RandomGames, DrawEveryKindAlike) {
    Player player(1);
    std::array<int, 39> drawn{};
    for (int i = 0; i < 39'000; ++i) {
        player.card.NextCard(kCardKinds);
        ++drawn.at(static_cast<std::size_t>(player.card.NextCard()));
    }
    for (const int count : drawn) EXPECT_NEAR(count, 1000, 160);  // five standard deviations
}
