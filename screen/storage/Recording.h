#pragma once

#include <QByteArray>
#include <cstdint>
#include <vector>

// What the player did in this run of the program: the mouse moves of the active card, and each game's first
// card, in the encoding of the demonstration's script without its locks. At most 32,767 of each.
class Recording {
public:
    // The active card was moved to `cell` with the mouse.
    void Move(std::int16_t cell);
    // A new game has begun with a card of kind `firstCard`. Also counts as a move to cell 0.
    void NewGame(std::int16_t firstCard);

    [[nodiscard]] std::int16_t DemoMoveCount() const { return static_cast<std::int16_t>(ArrDemo_.size()); }
    [[nodiscard]] std::int16_t DemoCardCount() const {
        return static_cast<std::int16_t>(ArrDemoCard_.size());
    }

    // One line per move, "ArrDemo(0) = 12", then the cards; lines end in CR LF. Empty before the first game.
    [[nodiscard]] QByteArray AsText() const;

private:
    std::vector<std::uint8_t> ArrDemo_, ArrDemoCard_;
};

// Appends `text` to the file `path`, creating it if missing. False if not all could be written; the file is
// then unchanged.
[[nodiscard]] bool AppendToFile(const QString& path, const QByteArray& text);
