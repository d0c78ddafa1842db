// How fast the rules are by themselves: complete games of random play on a screen that shows nothing.

#include <benchmark/benchmark.h>

#include <cstdint>
#include <string_view>

#include "model/RandomSource.h"
#include "tools/bench/ModelScreen.h"

namespace {

// A linear congruence: the same games on every run, and next to nothing of the time measured.
class CheapRandom : public RandomSource {
public:
    void Reseed() override {}
    std::int16_t Below(std::int16_t count) override {
        state_ = state_ * 6364136223846793005U + 1442695040888963407U;
        return static_cast<std::int16_t>(((state_ >> 32U) * static_cast<std::uint64_t>(count)) >> 32U);
    }

private:
    std::uint64_t state_ = 1;
};

class CountingScreen : public ModelScreen {
public:
    std::int64_t locks = 0;  // those that bring a next card, which all but one in a game do

    void StartNextTurn() override {
        ++locks;
        ModelScreen::StartNextTurn();
    }
};

void PlayGame(clsCard& game, CountingScreen& screen, CheapRandom& random) {
    screen.gamesOver = 0;
    game.Score(0);
    game.NewGame();
    while (screen.gamesOver == 0) {
        game.PosCurrentCard(random.Below(kCells));
        game.MoveCard(kKeyLock);  // over a locked card it only sounds, as for a player
    }
}

void BM_RandomGames(benchmark::State& state) {
    CheapRandom random;
    CountingScreen screen;
    clsCard game(screen, random);
    screen.game = &game;
    game.SetLevel(kLevels - 1);
    for (auto iteration : state) {
        static_cast<void>(iteration);
        PlayGame(game, screen, random);
    }
    state.SetItemsProcessed(screen.locks);
    const auto locks = static_cast<double>(screen.locks);
    using benchmark::Counter;
    state.counters["time/lock"] = Counter(locks, Counter::kIsRate | Counter::kInvert);
}
BENCHMARK(BM_RandomGames);

}  // namespace
