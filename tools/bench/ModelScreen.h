#pragma once

#include "model/GameScreen.h"
#include "model/Levels.h"
#include "model/SaturatedSum.h"
#include "model/clsCard.h"

// A screen without a picture: does to the model what the real one does, and tells `Saw` of every request.
class ModelScreen : public GameScreen {
public:
    clsCard* game = nullptr;  // set before the first game
    int gamesOver = 0;

    virtual void Saw(std::string_view /*request*/, std::int64_t = -1, std::int64_t = -1) {}

    void DrawCardMove(std::int16_t to, std::int16_t from) override { Saw("DrawCardMove", to, from); }
    void DrawCardMoveOverCard(std::int16_t to, std::int16_t from) override { Saw("MoveOverCard", to, from); }
    void ShowActiveCard() override { Saw("ShowActiveCard"); }
    void ShowCard(std::int16_t cell, std::int16_t kind) override { Saw("ShowCard", cell, kind); }
    void ClearPicture(std::int16_t cell) override { Saw("ClearPicture", cell); }
    void ClearDrawings(std::int16_t cell) override { Saw("ClearDrawings", cell); }
    void FlashCell(std::int16_t cell) override { Saw("FlashCell", cell); }
    void KeepAside(std::int16_t cell) override { Saw("KeepAside", cell); }
    void KeepNothingAside() override { Saw("KeepNothingAside"); }
    void ShowNextCard(std::int16_t kind) override { Saw("ShowNextCard", kind); }
    void ShowCardsLeft(std::int32_t cards) override { Saw("ShowCardsLeft", cards); }
    bool PlayWave(std::int16_t resource) override { return Saw("PlayWave", resource), true; }
    bool PlaySoundFile(std::string_view file, std::uint32_t how) override { return Saw(file, how), true; }
    void GameOver() override { Saw("GameOver"), ++gamesOver; }

    void RestartLockTimers() override {
        Saw("RestartLockTimers");
        game->CurrentInterval(LockTime(game->SetLevel(), game->CardsInMatrix()));
    }
    void ResetBoardScreen() override {
        game->CardsInMatrix(0), game->CardsUsed(0), game->CardSum(kCardsInGame);
        game->NextCard(kCardKinds), game->CurrentCard(game->DrawKind()), game->PosCurrentCard(kStartCell);
    }
    void StartNextTurn() override {
        Saw("StartNextTurn", game->PosCurrentCard());
        game->PosCurrentCard(kStartCell), game->CurrentCard(game->NextCard()), game->NextCard(kCardKinds);
        game->CardsUsed(SaturatedSum(game->CardsUsed(), 1));
        if (game->CardsUsed() < kCardsInGame) RestartLockTimers();
    }
};
