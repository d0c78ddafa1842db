#pragma once

#include "model/GameScreen.h"

class clsCard;
class frmGame;

// The screen procedures: the game window's side of the model's port, and helpers of several handlers.
class mdlFormFunc final : public GameScreen {
public:
    explicit mdlFormFunc(frmGame& form) : form_(form) {}

    // Drawing.cpp
    void DrawCardMove(std::int16_t newCell, std::int16_t oldCell) override;
    void DrawCardMoveOverCard(std::int16_t newCell, std::int16_t oldCell) override;
    void ShowActiveCard() override;
    void ResetBoardScreen() override;
    void ShowCard(std::int16_t cell, std::int16_t kind) override;
    void ClearPicture(std::int16_t cell) override;
    void ClearDrawings(std::int16_t cell) override;
    void FlashCell(std::int16_t cell) override;
    void KeepAside(std::int16_t cell) override;
    void KeepNothingAside() override;
    void ShowNextCard(std::int16_t kind) override;
    // Draw the active card over the locked card of `cell`, and its red frame.
    void DrawCardOverCard(std::int16_t cell);
    void DrawActiveFrame(std::int16_t cell);
    // Hides the board behind the cover picture, cell by cell; blocks for 800 milliseconds.
    void CoverBoard();

    // TurnCycle.cpp
    void StartNextTurn() override;
    void RestartLockTimers() override;
    void ShowCardsLeft(std::int32_t cards) override;
    bool PlayWave(std::int16_t resource) override;
    bool PlaySoundFile(std::string_view source, std::uint32_t flags) override;

    // HighScores.cpp
    void GameOver() override;
    // Creates the high-score table if missing. Called once, first in the window's set-up.
    void InitHighScoreTable();

private:
    void MoveActiveCard(std::int16_t newCell, std::int16_t oldCell);
    void ShadeActiveCell();

    frmGame& form_;
};
