#pragma once

#include <cstdint>
#include <string_view>

// Flags of the platform's sound call: do not wait for the sound's end, play nothing instead of a missing
// sound, do not wait for a busy device, the source is a file's name.
inline constexpr std::uint32_t SND_ASYNC = 0x1;
inline constexpr std::uint32_t SND_NODEFAULT = 0x2;
inline constexpr std::uint32_t SND_NOWAIT = 0x2000;
inline constexpr std::uint32_t SND_FILENAME = 0x20000;

// The port through which the rules show the game and play its sounds. Cells are 0..15: row * 4 + column, row
// 0 at the top. Kinds are 0..38. Calls are synchronous; none calls back into the model unless noted.
class GameScreen {
public:
    virtual ~GameScreen() = default;

    // The active card leaves `oldCell`, which shows again what lay under it, and shows in the free `newCell`.
    virtual void DrawCardMove(std::int16_t newCell, std::int16_t oldCell) = 0;
    // The same into an occupied cell: the active card is shown shaded.
    virtual void DrawCardMoveOverCard(std::int16_t newCell, std::int16_t oldCell) = 0;
    // Shows the active card in its cell, shaded when that is occupied, without giving back any other cell.
    virtual void ShowActiveCard() = 0;

    // The new-game reset: sets the model's counters, draws the first two cards through the model's
    // properties and shows an empty board with the first card in cell 12.
    virtual void ResetBoardScreen() = 0;
    // After a lock that does not end the game: the next card comes in (through the model's properties), the
    // labels follow, CardsUsed goes up by one and, below 100, the lock timers start afresh.
    virtual void StartNextTurn() = 0;
    // The game has ended: locks the input, covers the board and stops the timers.
    virtual void GameOver() = 0;

    // `cell` shows the picture of `kind`, without drawings.
    virtual void ShowCard(std::int16_t cell, std::int16_t kind) = 0;
    // `cell` shows the empty picture, without drawings.
    virtual void ClearPicture(std::int16_t cell) = 0;
    // What was drawn on the picture of `cell` disappears; the picture stays.
    virtual void ClearDrawings(std::int16_t cell) = 0;
    // `cell` turns black on the screen at once and stays so for 20 milliseconds, which this call waits.
    virtual void FlashCell(std::int16_t cell) = 0;
    // The picture kept aside for the cell under the active card becomes that of `cell`, or the empty one.
    virtual void KeepAside(std::int16_t cell) = 0;
    virtual void KeepNothingAside() = 0;
    // The preview shows the picture of `kind`.
    virtual void ShowNextCard(std::int16_t kind) = 0;

    // `cards`: cards left in the game; more than 100 after bonuses.
    virtual void ShowCardsLeft(std::int32_t cards) = 0;
    // Stops both lock timers, recomputes the model's CurrentInterval for its level and board, empties the
    // time bar and starts both timers with the new interval.
    virtual void RestartLockTimers() = 0;

    // Starts the built-in sound `resource` (101..112); false when it cannot sound. Never waits.
    virtual bool PlayWave(std::int16_t resource) = 0;
    // Starts the sound file `source`, a path below the program's folder ("\wav\Space.wav"), with the flags of
    // the platform's sound call. False when it cannot sound. Never waits.
    virtual bool PlaySoundFile(std::string_view source, std::uint32_t flags) = 0;
};
