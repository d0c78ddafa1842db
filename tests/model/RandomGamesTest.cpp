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

// Draws from the first `kinds` kinds only: with few of them many lines share much.
struct SeededRandom : RandomSource {
    std::mt19937_64 engine;
    std::int16_t kinds;

    SeededRandom(unsigned seed, std::int16_t cardKinds) : engine(seed), kinds(cardKinds) {}
    void Reseed() override {}
    std::int16_t Below(std::int16_t count) override {
        const int last = (count == kCardKinds ? kinds : count) - 1;
        return std::uniform_int_distribution<std::int16_t>(0, static_cast<std::int16_t>(last))(engine);
    }
};

struct Player : ModelScreen {
    SeededRandom random;
    clsCard card{*this, random};
    std::int64_t locked = -1, sound = 0;

    Player(unsigned seed, std::int16_t kinds) : random(seed, kinds) { game = &card; }
    void Saw(std::string_view request, std::int64_t first, std::int64_t) override {
        if (request == "StartNextTurn") locked = first;
        if (request == "PlayWave") sound = first;
    }
    void GameOver() override {
        if (locked < 0) locked = card.PosCurrentCard();  // a full board has no next turn
        ++gamesOver;
    }
    void Step() {
        constexpr std::array keys{kKeyLock, kKeyLock, kKeyLeft, kKeyUp, kKeyRight, kKeyDown};
        const auto choice = static_cast<std::size_t>(random.Below(7));
        locked = -1, sound = 0;
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

// Another way to what the model does: by sets and words. Empties the complete lines; returns what they share.
std::size_t TakeLines(Board& board, std::size_t locked) {
    constexpr std::string_view names = "0123456789abcdef";
    const Board cards = board;
    std::size_t total = 0;
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
            if (shared > 0) board[names.find(cell)].Quantity = 5;
        total += static_cast<std::size_t>(shared);
    }
    return total;
}

}  // namespace

TEST(RandomGames, GoByTheRules) {
    constexpr int rewards[][3] = {{0, 0, 0},      {10, 1, 106},   {50, 5, 107},
                                  {200, 17, 108}, {500, 26, 109}, {1000, 51, 110}};
    for (unsigned seed = 1; seed <= 300; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        Player player(seed, seed % 3 == 0 ? 7 : kCardKinds);
        clsCard& card = player.card;
        card.SetLevel(3);
        card.NewGame();
        for (int step = 0; step < 1000 && player.gamesOver == 0; ++step) {
            Board expected = Read(card);
            const int kind = card.CurrentCard(), score = card.Score(), used = card.CardsUsed();
            player.Step();
            ASSERT_EQ(card.CardsInMatrix(), Occupied(Read(card)));
            if (player.locked < 0) continue;
            const auto locked = static_cast<std::size_t>(player.locked);
            ASSERT_EQ(expected[locked].Quantity, 5);
            expected[locked] = {0, kind / 12 + 1, kind % 3 + 1, kind / 3 % 4 + 1};
            const int cards = Occupied(expected);
            const auto& [points, back, sound] =
                rewards[std::min<std::size_t>(TakeLines(expected, locked), 5)];
            ASSERT_EQ(card.SerieScore(), points * cards * 5);
            ASSERT_EQ(card.Score(), score + card.SerieScore());
            ASSERT_EQ(card.CardsUsed(), used + (card.CardsInMatrix() < 16 ? 1 : 0) - back);
            ASSERT_EQ(player.sound, sound);
            ASSERT_EQ(Occupied(expected), card.CardsInMatrix());
        }
        ASSERT_EQ(player.gamesOver, card.CardsInMatrix() == 16 || card.CardsUsed() == 100);
        if (card.CardsInMatrix() == 16) card.PutInRndPlace();  // a stray tick finds no free cell, and ends
    }
}

TEST(RandomGames, DrawEveryKindAlike) {
    Player player(1, kCardKinds);
    std::array<int, 39> drawn{};
    for (int i = 0; i < 39'000; ++i) {
        player.card.NextCard(kCardKinds);
        ++drawn.at(static_cast<std::size_t>(player.card.NextCard()));
    }
    for (const int count : drawn) EXPECT_NEAR(count, 1000, 160);  // five standard deviations
}
