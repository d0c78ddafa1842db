#pragma once

#include <cstdint>
#include <string_view>

// Sound flags, in this order: return at once, no default sound for a missing one, fail if the device is busy,
// the source is a file name.
inline constexpr std::uint32_t SND_ASYNC = 0x1;
inline constexpr std::uint32_t SND_NODEFAULT = 0x2;
inline constexpr std::uint32_t SND_NOWAIT = 0x2000;
inline constexpr std::uint32_t SND_FILENAME = 0x20000;

// The port through which the rules show the game and play its sounds. Cells are 0..15: row * 4 + column, row
// 0 at the top. Kinds are 0..38. Calls are synchronous; none calls back into the model unless noted.
class GameScreen {
public:
    virtual ~GameScreen() = default;

    // Moves the active card from `oldCell`, where the picture under it is restored, to the free `newCell`.
    virtual void DrawCardMove(std::int16_t newCell, std::int16_t oldCell) = 0;
    // The same onto an occupied cell: the active card is shaded.
    virtual void DrawCardMoveOverCard(std::int16_t newCell, std::int16_t oldCell) = 0;
    // Shows the active card in its cell, shaded if that is occupied, without restoring any other cell.
    virtual void ShowActiveCard() = 0;

    // The new-game reset: sets the model's counters, draws the first two cards through the model's
    // properties and shows an empty board with the first card in cell 12.
    virtual void ResetBoardScreen() = 0;
    // After a lock that does not fill the board: deals the next card (through the model's properties),
    // updates the labels, increments CardsUsed and, if that is below 100, restarts the lock timers.
    virtual void StartNextTurn() = 0;
    // Ends the game: locks the input, covers the board and stops the timers.
    virtual void GameOver() = 0;

    // Shows the picture of `kind` in `cell`, without drawings.
    virtual void ShowCard(std::int16_t cell, std::int16_t kind) = 0;
    // Shows the empty picture in `cell`, without drawings.
    virtual void ClearPicture(std::int16_t cell) = 0;
    // Removes the drawings over the picture of `cell`; the picture stays.
    virtual void ClearDrawings(std::int16_t cell) = 0;
    // Paints `cell` black at once and blocks for 20 milliseconds.
    virtual void FlashCell(std::int16_t cell) = 0;
    // Saves the picture of `cell`, or the empty one, to be restored when the active card moves on.
    virtual void KeepAside(std::int16_t cell) = 0;
    virtual void KeepNothingAside() = 0;
    // Shows the picture of `kind` in the preview.
    virtual void ShowNextCard(std::int16_t kind) = 0;

    // `cards`: cards left in the game; bonuses can make it exceed 100.
    virtual void ShowCardsLeft(std::int32_t cards) = 0;
    // Stops both lock timers, recomputes the model's CurrentInterval for its level and board, empties the
    // time bar and starts both timers with the new interval.
    virtual void RestartLockTimers() = 0;

    // Starts the built-in sound `resource` (101..112); false if it cannot be played. Never blocks.
    virtual bool PlayWave(std::int16_t resource) = 0;
    // Starts the sound file `source`, a path below the program's folder ("\wav\Space.wav"), with the sound
    // flags above. False if it cannot be played. Never blocks.
    virtual bool PlaySoundFile(std::string_view source, std::uint32_t flags) = 0;
};
