#pragma once

#include <QByteArray>
#include <cstdint>
#include <vector>

// What the player did, as long as the program runs: the mouse moves of the active card, and each game's first
// card, in the encoding of the demonstration's script without its locks. When 32,767 moves or cards have been
// recorded, no more are.
class Recording {
public:
    // The active card was moved to `cell` with the mouse.
    void Move(std::int16_t cell);
    // A new game has begun with a card of kind `firstCard`. Counts as a move to cell 0 too.
    void NewGame(std::int16_t firstCard);

    [[nodiscard]] std::int16_t DemoMoveCount() const { return static_cast<std::int16_t>(ArrDemo_.size()); }
    [[nodiscard]] std::int16_t DemoCardCount() const {
        return static_cast<std::int16_t>(ArrDemoCard_.size());
    }

    // A line for each entry, "ArrDemo(0) = 12", then the cards; ended by CR LF. Empty before the first game.
    [[nodiscard]] QByteArray AsText() const;

private:
    std::vector<std::uint8_t> ArrDemo_, ArrDemoCard_;
};

// Adds `text` at the end of the file `path`, which is made when it is missing. Whole or not at all: false
// when it could not be written, and then the file is as it was.
[[nodiscard]] bool AppendToFile(const QString& path, const QByteArray& text);
