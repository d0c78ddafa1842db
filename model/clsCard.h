#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "model/Board.h"
#include "model/CardInfo.h"
#include "model/Lines.h"

class GameScreen;
class RandomSource;

// The keys that MoveCard takes, as virtual-key codes.
inline constexpr std::int32_t kKeyLock = 32;
inline constexpr std::int32_t kKeyLeft = 37;
inline constexpr std::int32_t kKeyUp = 38;
inline constexpr std::int32_t kKeyRight = 39;
inline constexpr std::int32_t kKeyDown = 40;

inline constexpr std::int16_t kCardsInGame = 100;

// The one game: deck, board, placement of the active card, eraser, timed lock, lines and levels. It is
// independent of any window: GameScreen shows and plays everything. Created once, reused for every game.
// Properties are overload pairs: a getter, and a setter that stores without validation unless noted.
class clsCard {
public:
    // Both must outlive the model. Deals no card and makes no call to the screen before NewGame.
    clsCard(GameScreen& screen, RandomSource& random);

    // Starts a game: the screen's reset deals the first two cards, then the board is emptied. The caller
    // must have reset the counters and scores. Restarts a running game too.
    void NewGame();

    // Moves or locks the active card. MoveTo: one of the kKey codes; an arrow that points off the board
    // does nothing, any other code redraws the card in place.
    void MoveCard(std::int32_t MoveTo);
    // Asks the screen to move the active card's picture from cell CardOldPos to PosCurrentCard.
    void PutCard(std::int16_t CardOldPos);
    // The lock time is over: locks the active card in a random free cell, or uses the eraser there.
    void PutInRndPlace();
    // True when the active card's cell holds a locked card.
    [[nodiscard]] bool CheckForCard() const;
    // The contents of `cell` (0..15, asserted).
    [[nodiscard]] const CardInfo& CardAt(std::int16_t cell) const;

    // Plays the sound file Source through the screen. Async: return at once (all callers do); SourceType,
    // PlayType: sound flags. False if nothing will be heard.
    bool PlaySoundFromFile(std::string_view Source, bool Async, std::uint32_t SourceType,
                           std::uint32_t PlayType);
    // Plays a file of the program's folder with the game's usual flags: asynchronously, no default sound.
    bool PlaySoundFromFile(std::string_view Source);

    // --- the deck ---
    [[nodiscard]] std::int16_t CardSum() const { return cardSum_; }  // cards in one game
    void CardSum(std::int16_t value) { cardSum_ = value; }
    // Cards used: one per lock, minus bonus cards; may be negative, saturates at 16 bits.
    [[nodiscard]] std::int16_t CardsUsed() const { return cardsUsed_; }
    void CardsUsed(std::int16_t value) { cardsUsed_ = value; }
    [[nodiscard]] std::int16_t CurrentCard() const { return currentCard_; }  // kind of the active card
    void CurrentCard(std::int16_t value) { currentCard_ = value; }
    [[nodiscard]] std::int16_t NextCard() const { return nextCard_; }  // kind of the next card
    void NextCard(std::int16_t kinds);  // re-seeds and draws it from that many kinds (1 or more)
    // Draws a kind 0..38 without re-seeding, for the first card of a game.
    [[nodiscard]] std::int16_t DrawKind();

    // --- the board ---
    [[nodiscard]] std::int16_t PosCurrentCard() const { return posCurrentCard_; }  // active cell 0..15
    void PosCurrentCard(std::int16_t value) { posCurrentCard_ = value; }
    [[nodiscard]] std::int16_t CardsInMatrix() const { return cardsInMatrix_; }  // locked cards 0..16
    void CardsInMatrix(std::int16_t value) { cardsInMatrix_ = value; }
    // The input lock: true during a timed lock, a pause and after a game. Stored for the screen.
    [[nodiscard]] bool RndAction() const { return rndAction_; }
    void RndAction(bool value) { rndAction_ = value; }

    // --- score and level ---
    [[nodiscard]] std::int32_t Score() const { return score_; }  // points of the game
    void Score(std::int32_t value) { score_ = value; }
    [[nodiscard]] std::int32_t SerieScore() const { return serieScore_; }  // points of the latest lock
    void SerieScore(std::int32_t value) { serieScore_ = value; }
    [[nodiscard]] std::int16_t SetLevel() const { return setLevel_; }  // 0 practice .. 4 master
    // Recomputes CurrentInterval too; a level outside 0..4 is ignored (asserted).
    void SetLevel(std::int16_t level);
    // Lock time in milliseconds; 0: no limit.
    [[nodiscard]] std::int16_t CurrentInterval() const { return currentInterval_; }
    void CurrentInterval(std::int16_t value) { currentInterval_ = value; }

    // --- stored for the screen; no rule reads them ---
    [[nodiscard]] const std::string& SetSkinPicture() const { return setSkinPicture_; }  // file in "\Art\"
    void SetSkinPicture(std::string value) { setSkinPicture_ = std::move(value); }
    [[nodiscard]] bool DemoAction() const { return demoAction_; }
    void DemoAction(bool value) { demoAction_ = value; }

private:
    // PosCurrentCard, clamped to a valid cell.
    [[nodiscard]] std::int16_t ActiveCell() const;
    [[nodiscard]] CardInfo& RecordOf(std::int16_t cell);
    [[nodiscard]] bool HasFreeCell() const;
    void EmptyCell(std::int16_t cell);

    void LockActiveCard();
    void StoreCurrentCard();  // not on screen: a card moved by hand is already drawn
    void PlaceCurrentCard();  // also on screen
    void FinishLock();        // after every lock: count, lines, then the end or the next turn

    void UseEraser();
    void EraseActiveCell();
    void DealAfterEraser();

    void CheckLines();
    [[nodiscard]] LineCards CardsOf(const LineCells& line) const;
    void ScoreLines(std::int16_t sharedElements);
    void ClearLine(const LineCells& line);

    const CardKinds ArrCardKinds_ = MakeCardKinds();
    std::array<std::array<CardInfo, kSide>, kSide> ArrMatrix_;
    GameScreen& screen_;
    RandomSource& random_;
    std::int16_t cardSum_ = kCardsInGame, cardsUsed_ = 0, currentCard_ = 0, nextCard_ = 0;
    std::int16_t posCurrentCard_ = 0, cardsInMatrix_ = 0;
    bool rndAction_ = false;
    std::int32_t score_ = 0, serieScore_ = 0;
    std::int16_t setLevel_ = 0, currentInterval_ = 0;
    std::string setSkinPicture_;
    bool demoAction_ = false;
};
