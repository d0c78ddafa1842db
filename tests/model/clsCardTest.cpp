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

std::int16_t Kind(const std::string& card) {  // the digits of AttrA, AttrB and Quantity
    return static_cast<std::int16_t>((card[0] - '1') * 12 + (card[2] - '1') * 3 + card[1] - '1');
}

struct Game : testing::Test {
    ScriptedRandom random;
    RecordingScreen screen;
    clsCard game{screen, random};

    Game() { screen.game = &game; }

    // A new game on a board read as on the screen, a card or "." a cell, with the active card in `cell`.
    void Start(const std::string& board, std::int16_t cell, std::int16_t kind) {
        game.NewGame();
        std::istringstream words(board);
        std::string word;
        for (std::int16_t at = 0; words >> word; ++at) {
            if (word == ".") continue;
            Hold(at, Kind(word));
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

TEST_F(Game, LockScoresWhatItsLinesShareAndClearsThem) {
    struct Case {
        const char *what, *board;
        std::int16_t level, cell;
        const char *card, *reward, *flashes;
        int used, cards;
    };
    const char* const columnAndRow = "0 4 8 12 4 5 6 7";
    const Case cases[] = {
        {"row of one AttrB, the tenth card", "331 . . .  . 222 323 121  212 111 . .  133 . 212 332", 1, 4,
         "124", "106 of 200", "4 5 6 7", 0, 6},
        {"falling row of one AttrA, column of one Quantity",
         "334 . . .  . 113 132 121  214 111 . .  134 . 212 332", 1, 4, "124", "108 of 4000", columnAndRow,
         -16, 3},
        {"row and column share one each", "131 . . .  . 212 114 213  321 . . .  111 . . .", 0, 4, "311",
         "107 of 350", columnAndRow, -4, 0},
        {"row of one kind, column of one AttrB", "121 . . .  . 223 223 223  322 . . .  124 . . .", 3, 4,
         "223", "109 of 17500", columnAndRow, -25, 0},
        {"three lines of one kind", ". 111 111 111  111 111 . .  111 . 111 .  111 . . 111", 4, 0, "111",
         "110 of 70000", "0 4 8 12 0 1 2 3 0 5 10 15", -50, 0},
        {"rising anti-diagonal", ". . . 234  . . 113 .  . 322 . .  . . . .", 2, 12, "131", "106 of 80",
         "12 9 6 3", 0, 0},
        {"a full row that shares nothing", "111 . . .  . 222 334 113", 4, 4, "111", "", "", 1, 5},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        Start(c.board, c.cell, Kind(c.card));
        game.SetLevel(c.level);
        game.Score(7);
        game.MoveCard(kKeyLock);
        std::ostringstream log;
        log << kLockFile << (*c.reward ? "PlayWave " + std::string(c.reward) + " on 7; " : kLockFile);
        std::istringstream cells(c.flashes);
        for (int cell = 0; cells >> cell;) log << "FlashCell " << cell << "; ClearPicture " << cell << "; ";
        log << "StartNextTurn " << c.cell << "; RestartLockTimers; ";
        EXPECT_EQ(screen.log, log.str());
        EXPECT_EQ(game.Score(), 7 + game.SerieScore());
        EXPECT_EQ(game.CardsUsed(), c.used);  // the lock itself takes one
        EXPECT_EQ(game.CardsInMatrix(), c.cards);
    }
    EXPECT_EQ(game.SerieScore(), 0);
}

TEST_F(Game, ArrowsMoveOneCellAndStopAtTheEdge) {
    Start(". . . .  . . . .  111 . . .  . 111 . .", kStartCell, 5);
    for (const int key : {37, 40, 38, 39, 40, 32, 65}) game.MoveCard(key);  // 65: no arrow
    game.PosCurrentCard(3);
    for (const int key : {39, 38}) game.MoveCard(key);
    EXPECT_EQ(
        screen.log,
        "PlayWave 104; MoveOverCard 8 12; PlayWave 104; DrawCardMove 9 8; PlayWave 104; MoveOverCard 13 9; "
        "PlayWave 105; PlayWave 104; MoveOverCard 13 13; ");
    EXPECT_EQ(game.CardsInMatrix(), 2);
}

TEST_F(Game, EraserEmptiesItsCellAndDealsTheNextCard) {
    struct Case {
        const char* what;
        std::int16_t cell, used, cards;
        const char *before, *shown, *after;
    };
    const Case cases[] = {
        {"over a card, one in the start cell", 5, 30, 1, "KeepAside 12; ClearPicture 5; ",
         "DrawCardOverCard 12; ", "ShowCardsLeft 70; RestartLockTimers; "},
        {"in the start cell", 12, 99, 1, "KeepNothingAside; ClearPicture 12; ", "ShowCard 12 4; ",
         "ShowCardsLeft 1; RestartLockTimers; "},
        {"over nothing, all cards used", 6, 100, 2, "KeepAside 12; ClearPicture 6; ", "DrawCardOverCard 12; ",
         "ShowCardsLeft 0; "},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        Start(". . . .  . 111 . .  . . . .  222 . . .", c.cell, kEraser);
        game.CardsUsed(c.used);
        random.draws = {4, 8};
        game.NextCard(kCardKinds);
        game.MoveCard(kKeyLock);
        EXPECT_EQ(screen.log, std::string(c.before) + "ClearDrawings 12; " + c.shown +
                                  "DrawActiveFrame 12; ShowNextCard 8; PlayWave 101; " + c.after);
        EXPECT_EQ(game.CardAt(c.cell).Quantity, 5);
        EXPECT_EQ(game.CardsInMatrix(), c.cards);
        EXPECT_EQ(game.CardsUsed(), c.used);
        EXPECT_EQ(game.CurrentCard(), 4);
    }
}

TEST_F(Game, LateCardGoesToARandomFreeCell) {
    for (const std::int16_t kind : {std::int16_t{5}, kEraser}) {
        Start("111 . . .  . . . .  . . . .  . . . 111", kStartCell, kind);
        random.draws = {0, 15, 0, 9};  // taken cells are drawn again
        random.reseeds = 0;
        game.PutInRndPlace();
        EXPECT_EQ(screen.log.substr(0, screen.log.find("; ClearDrawings")),
                  kind == 5
                      ? kLockFile + "ShowCard 9 5; " + kLockFile + "StartNextTurn 9; RestartLockTimers; "
                      : "KeepAside 12; ClearPicture 9");
        EXPECT_EQ(random.reseeds, 2);  // for the cell and for the next card
        EXPECT_EQ(game.CardsInMatrix(), kind == 5 ? 3 : 2);
    }
}

TEST_F(Game, EndsWhenTheBoardIsFullOrTheCardsAreUsed) {
    const char* const full = "312 321 131 234  123 113 131 .  212 221 314 224  313 331 311 233";
    struct Case {
        const char *what, *board, *card;
        std::int16_t used;
        int ends, cards;
    };
    const Case cases[] = {
        {"hundredth card", "", "111", 99, 1, 1},
        {"the card before", "", "111", 98, 0, 1},
        {"sixteenth card completes a row", full, "111", 99, 0, 12},
        {"sixteenth card completes nothing", full, "333", 99, 1, 16},
    };
    for (const bool timed : {false, true}) {
        for (const Case& c : cases) {
            SCOPED_TRACE(c.what);
            Start(c.board, 7, Kind(c.card));
            game.CardsUsed(c.used);
            screen.gamesOver = 0;
            random.draws = {7};
            timed ? game.PutInRndPlace() : game.MoveCard(kKeyLock);
            EXPECT_EQ(screen.gamesOver, c.ends);
            EXPECT_EQ(game.CardsInMatrix(), c.cards);
        }
    }
    screen.log.clear();
    game.PutInRndPlace();  // a stray tick on the full board
    EXPECT_EQ(screen.log, "");
    game.NewGame();
    for (std::int16_t cell = 0; cell < 16; ++cell) EXPECT_EQ(game.CardAt(cell), (CardInfo{cell, 5, 5, 5}));
}

TEST_F(Game, CountsStopAtTheEndOfTheirRange) {
    Start("111 111 111 .", 3, Kind("111"));
    game.SetLevel(0);
    game.Score(2147483647 - 799);  // one too many for the 200 * 4 points to come
    game.CardsUsed(-32760);
    game.MoveCard(kKeyLock);
    EXPECT_EQ(game.Score(), 2147483647);
    EXPECT_EQ(game.CardsUsed(), -32767);  // the lowest, and this card
}
