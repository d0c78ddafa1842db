// The menu bar, the level list and the two images in the window's corner.

#include <QApplication>

#include "model/Levels.h"
#include "screen/Look.h"
#include "screen/Narrator.h"
#include "screen/frmGame.h"
#include "shell/mdlSound.h"

namespace {

constexpr std::int16_t kPlay = 0, kMenu = 1, kHelp = 2, kScores = 3, kMore = 4;

// The bar's picture while button 0..3 is held down, and released.
constexpr const char* kPressedBar[] = {"menubar-play", "menubar-menu", "menubar-help", "menubar-score"};
constexpr const char* kReleasedBar = "menubar";

bool OnBar(std::int16_t index) {
    return index >= kPlay && index <= kScores;
}

}  // namespace

void frmGame::imgButton_MouseDown(std::int16_t Index, std::int16_t, std::int16_t, float, float) {
    if (OnBar(Index)) Image2.Picture(WindowArt(QLatin1String(kPressedBar[Index])));
}

void frmGame::imgButton_MouseUp(std::int16_t Index, std::int16_t, std::int16_t, float, float) {
    if (OnBar(Index)) Image2.Picture(WindowArt(QLatin1String(kReleasedBar)));
}

void frmGame::imgButton_Click(std::int16_t Index) {
    if (Index < kPlay || Index > kMore) return;
    const int click = ++clicks_;
    world_.random.Reseed();
    ShowScreen(Index == kMore ? kHelp : Index);
    Timer1.Enabled(false);
    Timer2.Enabled(false);
    lblNextCard.Visible(false);
    StopDemo = true;
    const QString failure = RunAction(Index);
    if (click != clicks_) return;
    if (!failure.isEmpty()) return world_.dialogs.Tell(this, failure);
    Highlight(Index);
    if (Index != kPlay && Index != kMore) narrator_->AddScreen(fraScreen[Index]);
    mdlSound::PlayWave(mdlSound::Wave(111));
}

// Do not hide the screen that stays, even briefly: it would lose the focus.
void frmGame::ShowScreen(std::int16_t index) {
    for (std::int16_t i = 0; i < fraScreen.size(); ++i)
        if (i != index) fraScreen[i].Visible(false);
    fraScreen[index].Visible(true);
}

QString frmGame::RunAction(std::int16_t menu) {
    switch (menu) {
        case kPlay:
            return StartGame();
        case kMenu:
            ShowMenu();
            break;
        case kScores:
            ShowScores();
            break;
        case kMore:
            lblNextCard.Visible(true);
            ShowInfo();
            break;
        default:
            ShowHelp();
            break;
    }
    return {};
}

QString frmGame::StartGame() {
    SetPlay(Play::Off);  // if nothing is dealt, the board takes no keys until a game starts
    for (PictureBox& cell : picMat) cell.Enabled(true);
    const int click = clicks_;
    FinishSkinSlots();
    QString failure = click == clicks_ ? LoadSkin() : QString();
    if (click != clicks_ || !failure.isEmpty()) return failure;
    prbTime.Value(0);
    Game().CardsUsed(0);
    Game().CardSum(kCardsInGame);
    Game().Score(0);
    Game().SerieScore(0);
    lblScore.Caption(QStringLiteral("0"));
    lblSerieScore.Caption(QStringLiteral("0"));
    lblCardsLeft.Caption(QString::number(kCardsInGame));
    Game().NewGame();
    SetPlay(Play::On);
    lblCardsLeft.Visible(true);
    setFocus();  // the board gets the keys, whatever had the focus
    recording_.NewGame(Game().CurrentCard());
    return {};
}

void frmGame::ShowMenu() {
    FinishSkinSlots();
    picPreview.Picture({});
    prbTime.Value(0);
}

void frmGame::ShowHelp() {
    lblNextCard.Visible(true);
    picPreview.Picture({});
}

// The high scores light no caption. The one lit before stays dark until another has been lit.
void frmGame::Highlight(std::int16_t menu) {
    if (menu != kScores && menu == CurrentMenu) return;
    lblCaption[CurrentMenu].ForeColor(kWhite);
    if (menu == kScores) return;
    lblCaption[menu].ForeColor(Look::kLitCaption);
    CurrentMenu = menu;
}

void frmGame::lblClass_Click(std::int16_t Index) {
    if (Index < 0 || Index >= kLevels) return;
    lblClass[CurrentLevel].ForeColor(Look::kLevel);
    lblClass[Index].ForeColor(kRed);
    shpLevel.Top(lblClass[Index].Top() - kTwipsPerPixel);
    lblLevelName.Caption(lblClass[Index].Caption());
    lblLevelBack.Caption(lblClass[Index].Caption());
    CurrentLevel = Index;
    Game().SetLevel(Index);
    mdlSound::PlayWave(mdlSound::Wave(102));
    shpTime.Visible(Index != 0);
    prbTime.Visible(Index != 0);
}

void frmGame::lblClass_MouseMove(std::int16_t Index, std::int16_t, std::int16_t, float, float) {
    if (Index == HoverLevel || Index < 0 || Index >= kLevels) return;
    const Label& label = lblClass[Index];
    Shape1.Left(label.Left() - 2 * Shape1.Width());
    Shape1.Top(label.Top() + Shape1.Height() / 2);
    HoverLevel = Index;
    mdlSound::PlayWave(mdlSound::Wave(103));
}

void frmGame::Image1_Click() {
    StopDemo = true;
    QApplication::closeAllWindows();
    QCoreApplication::quit();
}

void frmGame::imgMinimaize_Click() {
    showMinimized();
}
