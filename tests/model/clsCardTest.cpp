#include "model/clsCard.h"

#include <gtest/gtest.h>

#include <deque>
#include <sstream>

#include "model/RandomSource.h"
#include "tests/support/ModelScreen.h"

namespace {

constexpr std::int16_t kEraser = 37;
const std::string kLockFile = "\\wav\\Space.wav 139267; ";  // 0x22003: at once, no default, no wait, a file

struct ScriptedRandom : RandomSource {
    std::deque<std::int16_t> draws;  // after them every draw is 0
    int reseeds = 0;

    void Reseed() override { ++reseeds; }
    std::int16_t Below(std::int16_t) override {
        if (draws.empty()) draws.push_back(0);
        const std::int16_t draw = draws.front();
        draws.pop_front();
        return draw;
    }
};

struct RecordingScreen : ModelScreen {
    std::string log;

    void Saw(std::string_view request, std::int64_t first, std::int64_t second) override {
        log += request;
        if (first >= 0) log += ' ' + std::to_string(first);
        if (second >= 0) log += ' ' + std::to_string(second);
        if (request == "PlayWave" && first > 105)  // a reward: what is told already, and what is not
            log += " of " + std::to_string(game->SerieScore()) + " on " + std::to_string(game->Score());
        if (request == "FlashCell" && game->CardAt(static_cast<std::int16_t>(first)).Quantity != 5)
            log += "?";
        log += "; ";
    }
};

struct Game : testing::Test {
    ScriptedRandom random;
    RecordingScreen screen;
    clsCard game{screen, random};

    Game() { screen.game = &game; }

    // A new game with cards of kind 0 in `taken`, and the active card in `cell`.
    void Start(const std::vector<std::int16_t>& taken, std::int16_t cell, std::int16_t kind) {
        game.NewGame();
        for (const std::int16_t at : taken) {
            Hold(at, 0);
            game.MoveCard(kKeyLock);
        }
        game.CardsUsed(0);
        Hold(cell, kind);
        screen.log.clear();
    }
    void Hold(std::int16_t cell, std::int16_t kind) {
        game.PosCurrentCard(cell);
        game.CurrentCard(kind);
    }
};

}  // namespace

TEST_F(Game, ALockScoresBeforeItsLinesFlashAndTheNextCardComes) {
    Start({1, 2, 3, 4, 5, 8, 10, 12, 15}, 0, 0);
    game.Score(7);
    game.MoveCard(kKeyLock);
    std::ostringstream log;
    log << kLockFile << "PlayWave 110 of 10000 on 7; ";
    for (const int cell : {0, 4, 8, 12, 0, 1, 2, 3, 0, 5, 10, 15})
        log << "FlashCell " << cell << "; ClearPicture " << cell << "; ";
    log << "StartNextTurn 0; RestartLockTimers; ";
    EXPECT_EQ(screen.log, log.str());
}

TEST_F(Game, ArrowsMoveOneCellAndStopAtTheEdge) {
    Start({8, 13}, kStartCell, 5);
    for (const int key : {37, 40, 38, 39, 40, 32, 65}) game.MoveCard(key);  // 65: no arrow
    game.PosCurrentCard(7);
    for (const int key : {39, 38, 38}) game.MoveCard(key);
    EXPECT_EQ(
        screen.log,
        "PlayWave 104; MoveOverCard 8 12; PlayWave 104; DrawCardMove 9 8; PlayWave 104; MoveOverCard 13 9; "
        "PlayWave 105; PlayWave 104; MoveOverCard 13 13; PlayWave 104; DrawCardMove 3 7; ");
}

TEST_F(Game, EraserEmptiesItsCellAndDealsTheNextCard) {
    struct Case {
        const char* what;
        std::int16_t cell, used;
        const char *before, *shown, *after;
    };
    const Case cases[] = {
        {"over a card, one in the start cell", 5, 30, "KeepAside 12; ClearPicture 5; ",
         "DrawCardOverCard 12; ", "ShowCardsLeft 70; RestartLockTimers; "},
        {"in the start cell", 12, 99, "KeepNothingAside; ClearPicture 12; ", "ShowCard 12 4; ",
         "ShowCardsLeft 1; RestartLockTimers; "},
        {"over nothing, all cards used", 6, 100, "KeepAside 12; ClearPicture 6; ", "DrawCardOverCard 12; ",
         "ShowCardsLeft 0; "},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        Start({5, 12}, c.cell, kEraser);
        game.CardsUsed(c.used);
        random.draws = {4, 8};
        game.NextCard(kCardKinds);
        game.MoveCard(kKeyLock);
        EXPECT_EQ(screen.log, std::string(c.before) + "ClearDrawings 12; " + c.shown +
                                  "DrawActiveFrame 12; ShowNextCard 8; PlayWave 101; " + c.after);
        EXPECT_EQ(game.CardAt(c.cell), (CardInfo{c.cell, 5, 5, 5}));
        EXPECT_EQ(game.CardsUsed(), c.used);
        EXPECT_EQ(game.CurrentCard(), 4);
    }
}

TEST_F(Game, LateCardGoesToARandomFreeCell) {
    for (const std::int16_t kind : {std::int16_t{5}, kEraser}) {
        Start({0, 15}, kStartCell, kind);
        random.draws = {0, 15, 0, 9};  // taken cells are drawn again
        random.reseeds = 0;
        game.PutInRndPlace();
        EXPECT_EQ(screen.log.substr(0, screen.log.find("; ClearDrawings")),
                  kind == 5
                      ? kLockFile + "ShowCard 9 5; " + kLockFile + "StartNextTurn 9; RestartLockTimers; "
                      : "KeepAside 12; ClearPicture 9");
        EXPECT_EQ(random.reseeds, 2);  // for the cell and for the next card
    }
}

TEST_F(Game, CountsStopAtTheEndOfTheirRange) {
    Start({0, 1, 2}, 3, 0);
    game.Score(2147483647 - 799);  // one too many for the 200 * 4 points to come
    game.CardsUsed(-32760);
    game.MoveCard(kKeyLock);
    EXPECT_EQ(game.Score(), 2147483647);
    EXPECT_EQ(game.CardsUsed(), -32767);  // the lowest, and this card
}
