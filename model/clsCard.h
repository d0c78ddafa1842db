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

// The keys a card is played with: virtual-key codes, as the screen passes them to MoveCard.
inline constexpr std::int32_t kKeyLock = 32;
inline constexpr std::int32_t kKeyLeft = 37;
inline constexpr std::int32_t kKeyUp = 38;
inline constexpr std::int32_t kKeyRight = 39;
inline constexpr std::int32_t kKeyDown = 40;

inline constexpr std::int16_t kCardsInGame = 100;

// The one game: deck, board, placement of the active card, eraser, timed lock, lines and levels. It knows no
// window: what the player sees and hears it asks of the GameScreen. Created once, reused for every game.
// Properties are pairs of overloads: a reader, and a writer that stores without checking unless said
// otherwise.
class clsCard {
public:
    // Both must outlive the model. No card is dealt and nothing is asked of the screen before NewGame.
    clsCard(GameScreen& screen, RandomSource& random);

    // Starts a game: the screen's reset deals the first two cards, then the board is emptied. The caller
    // has set the counters and scores to their start values. Restarts a running game too.
    void NewGame();

    // Moves or locks the active card. MoveTo: one of the kKey codes; an arrow at the board's edge does
    // nothing, any other code shows the card again where it is.
    void MoveCard(std::int32_t MoveTo);
    // Asks the screen to move the active card's picture from cell CardOldPos to PosCurrentCard.
    void PutCard(std::int16_t CardOldPos);
    // The lock time is over: locks the active card in a random free cell, or spends the eraser there.
    void PutInRndPlace();
    // True when the active card's cell holds a locked card.
    [[nodiscard]] bool CheckForCard() const;
    // What lies in `cell` (0..15, asserted).
    [[nodiscard]] const CardInfo& CardAt(std::int16_t cell) const;

    // Plays the sound file Source through the screen. Async: do not wait for its end (every caller's choice);
    // SourceType and PlayType: flags of the platform's sound call. False when nothing will be heard.
    bool PlaySoundFromFile(std::string_view Source, bool Async, std::uint32_t SourceType,
                           std::uint32_t PlayType);
    // Plays a file of the program's folder the way the whole game does: at once, without a default sound.
    bool PlaySoundFromFile(std::string_view Source);

    // --- the deck ---
    [[nodiscard]] std::int16_t CardSum() const { return cardSum_; }  // cards in one game
    void CardSum(std::int16_t value) { cardSum_ = value; }
    // Cards consumed: +1 a lock, minus bonus cards; may be negative, never leaves the 16-bit range.
    [[nodiscard]] std::int16_t CardsUsed() const { return cardsUsed_; }
    void CardsUsed(std::int16_t value) { cardsUsed_ = value; }
    [[nodiscard]] std::int16_t CurrentCard() const { return currentCard_; }  // kind of the active card
    void CurrentCard(std::int16_t value) { currentCard_ = value; }
    [[nodiscard]] std::int16_t NextCard() const { return nextCard_; }  // kind of the card that comes next
    void NextCard(std::int16_t kinds);  // draws it among that many kinds (1 or more), after re-seeding
    // What CurrentCard is drawn with at a new game: a kind 0..38, without re-seeding.
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
    // Lock time in milliseconds; 0: none.
    [[nodiscard]] std::int16_t CurrentInterval() const { return currentInterval_; }
    void CurrentInterval(std::int16_t value) { currentInterval_ = value; }

    // --- stored for the screen; no rule reads them ---
    [[nodiscard]] const std::string& SetSkinPicture() const { return setSkinPicture_; }  // file in "\Art\"
    void SetSkinPicture(std::string value) { setSkinPicture_ = std::move(value); }
    [[nodiscard]] bool DemoAction() const { return demoAction_; }
    void DemoAction(bool value) { demoAction_ = value; }

private:
    // The active cell as a cell of the board, whatever PosCurrentCard was given.
    [[nodiscard]] std::int16_t ActiveCell() const;
    [[nodiscard]] CardInfo& RecordOf(std::int16_t cell);
    [[nodiscard]] bool HasFreeCell() const;
    void EmptyCell(std::int16_t cell);

    void LockActiveCard();
    void StoreCurrentCard();  // into the board only: where it was moved by hand, its picture is there already
    void PlaceCurrentCard();  // stores it and shows it
    void FinishLock();        // what follows every lock: count, lines, then the end or the next turn

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
