// Random sessions of the model beside a second reading of its rules. Both write down every request to the
// screen, every draw, and the whole game as it stands at that moment; the two records must be the same. The
// sessions also go where no play leads: counters at the ends of their range, cards and cells set from
// outside, keys after the end.

#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <random>
#include <set>

#include "model/RandomSource.h"
#include "tests/support/ModelScreen.h"

namespace {

using Int = std::int64_t;

// From a deck of few ordinary kinds come many lines that share much.
struct Side {
    std::mt19937 dice;
    int kinds;
    std::string record{};

    explicit Side(unsigned seed) : dice(seed), kinds(std::array{36, 7, 1}.at(seed % 3)) {}
    int Draw(int count) {
        const int drawn = static_cast<int>(dice() % static_cast<unsigned>(count));
        return count == 39 && drawn < 36 ? drawn % kinds : drawn;
    }
    void Write(std::initializer_list<Int> numbers) {
        for (const Int number : numbers) record += ' ' + std::to_string(number);
    }
};

// A cell: three digits for its elements, 555 when it is empty, and its number.
std::string Cell(Int a, Int b, Int quantity, Int number) {
    return ' ' + std::to_string(100 * a + 10 * b + quantity) + ":" + std::to_string(number);
}

struct Played : Side, ModelScreen, RandomSource {
    clsCard card{*this, *this};

    explicit Played(unsigned seed) : Side(seed) { game = &card; }
    void Saw(std::string_view what, Int first = -1, Int second = -1) override {
        record += '\n' + std::string(what);
        Write({first, second, card.PosCurrentCard(), card.CurrentCard(), card.NextCard(), card.CardsUsed()});
        Write({card.CardsInMatrix(), card.CurrentInterval(), card.SetLevel(), card.CardSum(), card.Score()});
        Write({card.SerieScore(), card.CheckForCard()});
        for (std::int16_t cell = 0; cell < 16; ++cell) {
            const CardInfo& at = card.CardAt(cell);
            record += Cell(at.AttrA, at.AttrB, at.Quantity, at.Number);
        }
    }
    void GameOver() override { Saw("GameOver"); }
    void Reseed() override { Saw("Reseed"); }
    std::int16_t Below(std::int16_t count) override {
        return Saw("Below", count), static_cast<std::int16_t>(Draw(count));
    }
};

// With another way to the lines, by sets and words, and to the lock time, by whole numbers.
struct Rules : Side {
    Int cell = 0, kind = 0, next = 0, used = 0, cards = 0, time = 0, level = 0, score = 0, serie = 0,
        sum = 100;
    std::string board[16], faces[36];

    explicit Rules(unsigned seed) : Side(seed) {
        for (std::string& at : board) at = Cell(5, 5, 5, 0);
        for (int i = 0, a = 1; a <= 3; ++a)
            for (int quantity = 1; quantity <= 4; ++quantity)
                for (int b = 1; b <= 3; ++b, ++i) faces[i] = Cell(a, b, quantity, i);
    }
    static bool IsTaken(const std::string& at) { return at[1] != '5'; }
    bool Taken() const { return IsTaken(board[cell]); }
    void Empty(Int number) { board[number] = Cell(5, 5, 5, number); }
    void Tell(const std::string& what, Int first = -1, Int second = -1) {
        record += '\n' + what;
        Write({first, second, cell, kind, next, used, cards, time, level, sum, score, serie, Taken()});
        for (const std::string& at : board) record += at;
    }
    int Below(int count) { return Tell("Below", count), Draw(count); }
    void NextCard(int count) { Tell("Reseed"), next = Below(count); }
    void Sound(bool async, int flags, const char* file) { Tell(file, (async ? 1 : 0) + 2 + flags); }
    void LockSound() { Sound(true, 0x20000 + 0x2000, "\\wav\\Space.wav"); }
    // In sixteenths of a millisecond; single precision leaves one sum a little above its tie.
    Int Time() const {
        const Int above = level == 3 && cards == 14 ? 1 : 0;
        constexpr Int start[] = {0, 10000, 6000, 3800, 2200}, end[] = {0, 7000, 4000, 1700, 1500};
        const Int exact = 16 * start[level] - cards * (start[level] - end[level]) + above;
        return exact / 16 + (exact % 16 + exact / 16 % 2 > 8 ? 1 : 0);
    }
    void RestartTimers() { Tell("RestartLockTimers"), time = Time(); }
    void NewGame() {
        cards = used = 0, sum = 100;
        NextCard(39);
        kind = Below(39), cell = 12;
        for (int number = 0; number < 16; ++number) Empty(number);
    }
    void Key(int key) {
        if (key == 32) return kind > 35 ? Erase() : Taken() ? Tell("PlayWave", 105) : Lock(false);
        const Int old = cell, row = old / 4 + (key == 40) - (key == 38);
        const Int column = old % 4 + (key == 39) - (key == 37);
        if (std::min(row, column) < 0 || std::max(row, column) > 3) return;
        cell = 4 * row + column;
        Tell("PlayWave", 104);
        Tell(Taken() ? "MoveOverCard" : "DrawCardMove", cell, old);
    }
    void Late() {
        if (std::ranges::all_of(board, IsTaken)) return;
        Tell("Reseed");
        do cell = Below(16);
        while (Taken());
        kind > 35 ? Erase() : Lock(true);
    }
    void Lock(bool late) {
        LockSound();
        board[cell] = faces[kind];
        if (late) Tell("ShowCard", cell, kind);
        ++cards;
        TakeLines();
        if (cards == 16) return Tell("GameOver");
        Tell("StartNextTurn", cell);
        cell = 12, kind = next;
        NextCard(39);
        used = std::min<Int>(used + 1, 32767);
        if (used < 100) RestartTimers();
        if (used == 100) Tell("GameOver");
    }
    void Erase() {
        cards -= Taken() ? 1 : 0;
        Empty(cell);
        cell == 12 ? Tell("KeepNothingAside") : Tell("KeepAside", 12);
        Tell("ClearPicture", cell);
        cell = 12;
        Tell("ClearDrawings", 12);
        kind = next;
        Taken() ? Tell("DrawCardOverCard", 12) : Tell("ShowCard", 12, kind);
        Tell("DrawActiveFrame", 12);
        NextCard(39);
        Tell("ShowNextCard", next), Tell("PlayWave", 101), Tell("ShowCardsLeft", sum - used);
        if (used < 100) RestartTimers();
    }
    void TakeLines() {
        constexpr std::string_view names = "0123456789abcdef";
        std::string complete;
        Int total = 0;
        for (const std::string line :
             {"048c", "159d", "26ae", "37bf", "0123", "4567", "89ab", "cdef", "05af", "c963"}) {
            if (line.find(names.substr(static_cast<std::size_t>(cell), 1)) == line.npos) continue;
            std::set<char> a, b, quantity;
            std::string series;
            for (const char name : line) {
                const std::string& at = board[names.find(name)];
                a.insert(at[1]), b.insert(at[2]), quantity.insert(at[3]), series += at[3];
            }
            const int shared = (a.size() == 1) + (b.size() == 1) + (quantity.size() == 1) +
                               (series == "1234" || series == "4321");
            total = std::min<Int>(total + shared, 5);
            if (shared > 0) complete += line;
        }
        if (total == 0) LockSound();
        constexpr Int points[] = {0, 10, 50, 200, 500, 1000}, factor[] = {1, 2, 2, 5, 7};
        constexpr Int back[] = {0, 1, 5, 17, 26, 51};
        serie = points[total] * cards * factor[level];
        if (total > 0) Tell("PlayWave", 105 + total);
        score = std::min<Int>(score + serie, 2147483647);
        used = std::max<Int>(used - back[total], -32768);
        for (const char name : complete) {
            const auto flashed = static_cast<Int>(names.find(name));
            Empty(flashed);
            Tell("FlashCell", flashed), Tell("ClearPicture", flashed);
        }
        cards = std::ranges::count_if(board, IsTaken);
    }
};

}  // namespace

TEST(Rules, HoldInRandomSessions) {
    for (unsigned seed = 1; seed <= 80; ++seed) {
        Played played(seed);
        Rules rules(seed);
        clsCard& card = played.card;
        std::int16_t any = 0, cell = 0;
        const auto key = [&](int code) { card.MoveCard(code), rules.Key(code); };
        constexpr std::int16_t used[] = {98, 99, 100, 101, -32768, -32750, 32766, 32767};
        const std::function<void()> actions[] = {
            [&] { any == 0 ? (card.NewGame(), rules.NewGame()) : key(31 + any % 14); },
            [&] { key(31 + any % 14); },
            [&] { card.PutInRndPlace(), rules.Late(); },
            [&] { card.PutCard(cell), rules.Tell("DrawCardMove", rules.cell, cell); },
            [&] { card.PosCurrentCard(cell), rules.cell = cell; },
            [&] { card.CurrentCard(any), rules.kind = any; },
            [&] { card.CardSum(any), rules.sum = any; },
            [&] { card.NextCard(cell + 1), rules.NextCard(cell + 1); },
            [&] { card.Score(2147483647 - 99 * any), rules.score = 2147483647 - 99 * any; },
            [&] { card.SetLevel(any % 5), rules.level = any % 5, rules.time = rules.Time(); },
            [&] { card.PlaySoundFromFile("a", any < 20, 64, 256), rules.Sound(any < 20, 320, "a"); },
            [&] { card.CardsUsed(used[any % 8]), rules.used = used[any % 8]; }};
        std::mt19937 choice(seed);
        card.NewGame(), rules.NewGame();
        for (int step = 0; step < 600; ++step) {
            any = static_cast<std::int16_t>(choice() % 39), cell = static_cast<std::int16_t>(any % 16);
            const auto action = choice() % (2 * std::size(actions));
            action < std::size(actions) ? actions[action]() : key(32);
            played.Saw("then"), rules.Tell("then");
            ASSERT_EQ(played.record, rules.record) << "seed " << seed << ", step " << step;
            played.record.clear(), rules.record.clear();
        }
    }
}
