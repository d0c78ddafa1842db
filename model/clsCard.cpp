#include "model/clsCard.h"

#include <algorithm>
#include <cassert>
#include <cstddef>
#include <span>

#include "model/GameScreen.h"
#include "model/Levels.h"
#include "model/RandomSource.h"
#include "model/Rewards.h"
#include "model/SaturatedSum.h"
#include "model/TableIndex.h"

namespace {

constexpr std::string_view kLockSound = "\\wav\\Space.wav";
constexpr std::int16_t kEraserSound = 101;
constexpr std::int16_t kMoveSound = 104;
constexpr std::int16_t kOccupiedSound = 105;

struct Step {
    std::int32_t key;
    int rows;
    int columns;
};
constexpr std::array<Step, 4> kSteps{{
    {kKeyLeft, 0, -1},
    {kKeyUp, -1, 0},
    {kKeyRight, 0, 1},
    {kKeyDown, 1, 0},
}};

Step StepFor(std::int32_t key) {
    const auto* step =
        std::find_if(kSteps.begin(), kSteps.end(), [key](const Step& s) { return s.key == key; });
    return step == kSteps.end() ? Step{key, 0, 0} : *step;
}

// Serves const and non-const boards.
auto& RecordIn(auto& matrix, std::int16_t cell) {
    const std::size_t index = TableIndex(cell, kCells);
    return matrix[index / kSide][index % kSide];
}

bool IsOccupied(const CardInfo& record) {
    return record.Quantity != kNoCard;
}

}  // namespace

clsCard::clsCard(GameScreen& screen, RandomSource& random) : screen_(screen), random_(random) {}

void clsCard::NewGame() {
    screen_.ResetBoardScreen();
    for (std::int16_t cell = 0; cell < kCells; ++cell) EmptyCell(cell);
}

// --- the board ---

std::int16_t clsCard::ActiveCell() const {
    return static_cast<std::int16_t>(TableIndex(posCurrentCard_, kCells));
}

const CardInfo& clsCard::CardAt(std::int16_t cell) const {
    return RecordIn(ArrMatrix_, cell);
}

CardInfo& clsCard::RecordOf(std::int16_t cell) {
    return RecordIn(ArrMatrix_, cell);
}

bool clsCard::CheckForCard() const {
    return IsOccupied(CardAt(ActiveCell()));
}

bool clsCard::HasFreeCell() const {
    return std::any_of(ArrMatrix_.begin(), ArrMatrix_.end(),
                       [](const auto& row) { return !std::all_of(row.begin(), row.end(), IsOccupied); });
}

void clsCard::EmptyCell(std::int16_t cell) {
    RecordOf(cell) = CardInfo{.Number = cell};
}

// --- placement ---

void clsCard::MoveCard(std::int32_t MoveTo) {
    if (MoveTo == kKeyLock) return LockActiveCard();

    const std::int16_t oldCell = ActiveCell();
    const Step step = StepFor(MoveTo);
    const int row = oldCell / kSide + step.rows;
    const int column = oldCell % kSide + step.columns;
    if (row < 0 || row >= kSide || column < 0 || column >= kSide) return;

    posCurrentCard_ = static_cast<std::int16_t>(row * kSide + column);
    screen_.PlayWave(kMoveSound);
    if (CheckForCard())
        screen_.DrawCardMoveOverCard(posCurrentCard_, oldCell);
    else
        PutCard(oldCell);
}

void clsCard::PutCard(std::int16_t CardOldPos) {
    screen_.DrawCardMove(ActiveCell(), CardOldPos);
}

void clsCard::LockActiveCard() {
    if (currentCard_ > kLastOrdinaryKind) return UseEraser();
    if (CheckForCard()) {
        screen_.PlayWave(kOccupiedSound);
        return;
    }
    PlaySoundFromFile(kLockSound);
    StoreCurrentCard();
    FinishLock();
}

void clsCard::PutInRndPlace() {
    // A full board has ended the game; on one, the loop below would never terminate.
    if (!HasFreeCell()) return;

    random_.Reseed();
    do posCurrentCard_ = random_.Below(kCells);
    while (CheckForCard());

    if (currentCard_ > kLastOrdinaryKind) return UseEraser();
    PlaySoundFromFile(kLockSound);
    PlaceCurrentCard();
    FinishLock();
}

void clsCard::StoreCurrentCard() {
    const std::size_t kind = TableIndex(currentCard_, kCardKinds);
    RecordOf(ActiveCell()) = ArrCardKinds_[kind / 3][kind % 3];
}

void clsCard::PlaceCurrentCard() {
    StoreCurrentCard();
    screen_.ShowCard(ActiveCell(), currentCard_);
}

void clsCard::FinishLock() {
    cardsInMatrix_ = SaturatedSum(cardsInMatrix_, 1);
    CheckLines();  // first: a sixteenth card that completes a line frees cells
    if (cardsInMatrix_ == kCells) return screen_.GameOver();
    screen_.StartNextTurn();
    if (cardsUsed_ == kCardsInGame) screen_.GameOver();
}

// --- the eraser ---

// It is used up even over an empty cell and, unlike a lock, takes no card from the stack.
void clsCard::UseEraser() {
    EraseActiveCell();
    DealAfterEraser();
    screen_.PlayWave(kEraserSound);
    screen_.ShowCardsLeft(cardSum_ - cardsUsed_);
    if (cardsUsed_ < kCardsInGame) screen_.RestartLockTimers();
}

void clsCard::EraseActiveCell() {
    const std::int16_t cell = ActiveCell();
    if (CheckForCard()) cardsInMatrix_ = SaturatedSum(cardsInMatrix_, -1);
    EmptyCell(cell);
    // The next card covers the start cell, so save its picture now; if it is the erased cell, save none, as
    // it still shows the eraser.
    if (cell == kStartCell)
        screen_.KeepNothingAside();
    else
        screen_.KeepAside(kStartCell);
    screen_.ClearPicture(cell);
}

void clsCard::DealAfterEraser() {
    posCurrentCard_ = kStartCell;
    screen_.ClearDrawings(kStartCell);
    currentCard_ = nextCard_;
    screen_.ShowActiveCard();
    NextCard(kCardKinds);
    screen_.ShowNextCard(nextCard_);
}

// --- lines ---

void clsCard::CheckLines() {
    const std::span<const LineCells> lines = LinesThrough(ActiveCell());
    std::array<std::int16_t, kMostLines> shared{};
    std::int16_t total = 0;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        shared[i] = SharedElements(CardsOf(lines[i]));
        total = static_cast<std::int16_t>(total + shared[i]);
    }
    ScoreLines(total);

    // Clear only after counting all lines: they share the locked cell.
    std::int16_t cleared = 0;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (shared[i] == 0) continue;
        ClearLine(lines[i]);
        ++cleared;
    }
    if (cleared > 0) cardsInMatrix_ = SaturatedSum(cardsInMatrix_, -(cleared * (kSide - 1) + 1));
}

LineCards clsCard::CardsOf(const LineCells& line) const {
    const auto card = [this](std::uint8_t cell) { return &ArrMatrix_[cell / kSide][cell % kSide]; };
    return {card(line[0]), card(line[1]), card(line[2]), card(line[3])};
}

void clsCard::ScoreLines(std::int16_t sharedElements) {
    if (sharedElements == 0) {
        PlaySoundFromFile(kLockSound);
        serieScore_ = 0;
        return;
    }
    const Reward& reward = RewardFor(sharedElements);
    // Computed before the lines are cleared, as their cards count too; 32 bits suffice for any 16-bit count.
    serieScore_ = reward.points * cardsInMatrix_ * LevelFactor(setLevel_);
    screen_.PlayWave(reward.sound);
    score_ = SaturatedSum(score_, serieScore_);
    cardsUsed_ = SaturatedSum(cardsUsed_, -reward.bonusCards);
}

void clsCard::ClearLine(const LineCells& line) {
    for (const std::int16_t cell : line) {
        EmptyCell(cell);
        screen_.FlashCell(cell);
        screen_.ClearPicture(cell);
    }
}

// --- deck and level ---

void clsCard::NextCard(std::int16_t kinds) {
    random_.Reseed();
    nextCard_ = random_.Below(kinds);
}

std::int16_t clsCard::DrawKind() {
    return random_.Below(kCardKinds);
}

void clsCard::SetLevel(std::int16_t level) {
    const bool known = level >= 0 && level < kLevels;
    assert(known);
    if (!known) return;
    setLevel_ = level;
    currentInterval_ = LockTime(level, cardsInMatrix_);
}

// --- sound files ---

bool clsCard::PlaySoundFromFile(std::string_view Source, bool Async, std::uint32_t SourceType,
                                std::uint32_t PlayType) {
    const std::uint32_t waiting = Async ? SND_ASYNC : 0;
    return screen_.PlaySoundFile(Source, waiting | SND_NODEFAULT | SourceType | PlayType);
}

bool clsCard::PlaySoundFromFile(std::string_view Source) {
    constexpr bool async = true;
    return PlaySoundFromFile(Source, async, SND_FILENAME, SND_NOWAIT);
}
