// A turn: the player's keys and mouse, the two timers, pause and resume, and the next card after a lock.

#include <QLocale>

#include "model/Levels.h"
#include "model/SaturatedSum.h"
#include "platform/language/Tesselor.h"
#include "screen/Narrator.h"
#include "screen/frmGame.h"
#include "shell/mdlSound.h"

namespace {

constexpr std::int16_t kKeyEscape = 27;
constexpr std::int32_t kBarTicks = 50;    // ticks of the time bar in a lock time
constexpr std::int32_t kRunningOut = 75;  // percent of it; announced

// The lock time divided by the bar's ticks, rounded half to even.
int BarInterval(int lockTime) {
    const int whole = lockTime / kBarTicks, rest = lockTime % kBarTicks * 2;
    const bool up = rest > kBarTicks || (rest == kBarTicks && whole % 2 == 1);
    return up ? whole + 1 : whole;
}

// The bar's increment per tick. Above junior the bar is full well before the time is up.
std::int32_t BarStep(std::int16_t level) {
    if (level == 1) return 2;
    return level >= 2 && level <= 4 ? 3 : 0;
}

}  // namespace

void frmGame::Form_KeyDown(std::int16_t KeyCode, std::int16_t /*Shift*/) {
    if (!fraScreen[0].Visible()) return;
    if (KeyCode == kKeyPause) return picMat_MouseDown(0, kRightButton, 0, 0, 0);
    if (Game().RndAction()) return;
    if (KeyCode == kKeyEscape) return world_.endAtOnce();
    if (KeyCode == kKeyLock || (KeyCode >= kKeyLeft && KeyCode <= kKeyDown)) Game().MoveCard(KeyCode);
}

void frmGame::picMat_MouseMove(std::int16_t Index, std::int16_t, std::int16_t, float, float) {
    if (Game().RndAction() || Game().CardsInMatrix() == kCells || Index == HoverCell) return;
    if (Index < 0 || Index >= kCells) return;
    const std::int16_t oldCell = Game().PosCurrentCard();
    Game().PosCurrentCard(Index);
    recording_.Move(Index);
    mdlSound::PlayWave(mdlSound::Wave(104));
    if (Game().CheckForCard())
        formFunc_.DrawCardMoveOverCard(Game().PosCurrentCard(), oldCell);
    else
        Game().PutCard(oldCell);
    HoverCell = Index;
}

void frmGame::picMat_MouseUp(std::int16_t, std::int16_t Button, std::int16_t, float, float) {
    if (!Game().RndAction() && Game().CardsInMatrix() != kCells && Button == kLeftButton)
        Form_KeyDown(kKeyLock, 0);
}

void frmGame::LockInCell(std::int16_t cell) {
    if (Game().PosCurrentCard() != cell) {
        HoverCell = -1;  // the mouse may already be in this cell
        picMat_MouseMove(cell, 0, 0, 0, 0);
    }
    if (Game().PosCurrentCard() == cell) picMat_MouseUp(cell, kLeftButton, 0, 0, 0);
}

void frmGame::picMat_MouseDown(std::int16_t, std::int16_t Button, std::int16_t, float, float) {
    if (play == Play::Off || Game().CardsInMatrix() >= kCells || Button != kRightButton) return;
    if (play == Play::On)
        Pause();
    else
        Resume();
}

// The first card of a game has no limit: its timers are off and stay off after a resume.
void frmGame::Pause() {
    SetPlay(Play::Paused);
    timersPaused_ = Timer1.Enabled();
    Timer1.Enabled(false);
    Timer2.Enabled(false);
    prbTime.Value(0);
    formFunc_.CoverBoard();
    narrator_->Add(Tesselor::tr("Paused."));
}

void frmGame::Resume() {
    SetPlay(Play::On);
    boardCovered = false;
    Timer1.Enabled(timersPaused_);
    Timer2.Enabled(timersPaused_);
    prbTime.Value(0);
    for (std::int16_t cell = 0; cell < kCells; ++cell) {
        if (!IsOccupied(cell)) {
            formFunc_.ClearPicture(cell);
            continue;
        }
        formFunc_.ShowCard(cell, Game().CardAt(cell).Number);
        Game().PlaySoundFromFile("\\wav\\space.wav");
    }
    formFunc_.ShowActiveCard();
    narrator_->Add(Tesselor::tr("Game resumed."));
}

void frmGame::Timer1_Timer() {
    Game().RndAction(true);
    GiveBackActiveCell();
    narrator_->ExpectTimedLock();
    Game().PutInRndPlace();
    narrator_->AddTimedEraser();
    if (play == Play::On) Game().RndAction(false);
}

void frmGame::GiveBackActiveCell() {
    const std::int16_t active = Game().PosCurrentCard();
    formFunc_.ClearDrawings(active);
    const bool overCard = Game().CheckForCard();
    picMat[active].Picture(overCard ? picTemp.Picture() : Picture());
}

void frmGame::Timer2_Timer() {
    const std::int32_t before = prbTime.Value(), step = BarStep(Game().SetLevel());
    if (step > 0) prbTime.Value(before + step);
    if (before < kRunningOut && prbTime.Value() >= kRunningOut)
        narrator_->Add(Tesselor::tr("A quarter of the time bar is left."));
    if (prbTime.Value() == prbTime.Bar().Max()) Timer2.Rest();
}

void mdlFormFunc::StartNextTurn() {
    clsCard& game = form_.Game();
    form_.TheNarrator().AddLock();
    KeepAside(kStartCell);
    ClearDrawings(game.PosCurrentCard());
    game.PosCurrentCard(kStartCell);
    game.CurrentCard(game.NextCard());
    ShowActiveCard();
    game.NextCard(kCardKinds);
    ShowNextCard(game.NextCard());
    form_.lblScore.Caption(QLocale().toString(game.Score()));
    if (game.SerieScore() != 0) form_.lblSerieScore.Caption(QString::number(game.SerieScore()));
    game.CardsUsed(SaturatedSum(game.CardsUsed(), 1));
    ShowCardsLeft(game.CardSum() - game.CardsUsed());
    if (game.CardsUsed() < kCardsInGame) RestartLockTimers();
}

void mdlFormFunc::RestartLockTimers() {
    clsCard& game = form_.Game();
    form_.Timer1.Enabled(false);
    form_.Timer2.Enabled(false);
    form_.prbTime.Value(0);
    game.CurrentInterval(LockTime(game.SetLevel(), game.CardsInMatrix()));
    form_.Timer1.Interval(game.CurrentInterval());
    form_.Timer2.Interval(BarInterval(game.CurrentInterval()));
    form_.Timer1.Enabled(true);
    form_.Timer2.Enabled(true);
}

void mdlFormFunc::ShowCardsLeft(std::int32_t cards) {
    form_.lblCardsLeft.Caption(QString::number(cards));
}

bool mdlFormFunc::PlayWave(std::int16_t resource) {
    return mdlSound::PlayWave(mdlSound::Wave(resource));
}

// Sounds never block the window, so only the kind of source is read from the flags.
bool mdlFormFunc::PlaySoundFile(std::string_view source, std::uint32_t flags) {
    if ((flags & SND_FILENAME) == 0) return false;
    World& world = form_.TheWorld();
    return world.soundFiles.Play(
        world.folder.Path(QString::fromUtf8(source.data(), qsizetype(source.size()))));
}
