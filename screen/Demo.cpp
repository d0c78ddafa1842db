// The demonstration: a real game, played by feeding the board's own mouse handlers from a script. Whatever
// the player does meanwhile runs inside its event processing and asks it to stop by StopDemo, which is looked
// at before every step; so nothing a step uses may go before the demonstration has unwound.

#include "screen/DemoScript.h"
#include "screen/Narrator.h"
#include "screen/frmGame.h"

using namespace std::chrono_literals;

namespace {

constexpr auto kFirstPause = 500ms, kStepPause = 300ms;

}  // namespace

void frmGame::cmdDemo_Click() {
    if (demoRuns_) return;
    demoRuns_ = true;
    RunDemo();
    demoRuns_ = false;
    if (unloaded_) game_.reset();
}

void frmGame::RunDemo() {
    for (PictureBox& cell : picMat) Show(cell, {});
    imgButton_Click(0);
    if (play != Play::On) return;  // there was no skin to play with
    StopDemo = false;
    for (PictureBox& cell : picMat) cell.Enabled(false);
    Show(picMat[kStartCell], PicClip1.Cell(DemoScriptCards[0]));
    formFunc_.ShowNextCard(DemoScriptCards[1]);
    picPreview.Refresh();
    Game().CurrentCard(DemoScriptCards[0]);
    world_.time.Wait(kFirstPause);
    std::size_t turn = 0;
    for (std::size_t step = 0; step < DemoScriptMoves.size(); ++step) {
        if (StopDemo) return;
        Timer1.Enabled(false);
        if (DemoScriptMoves[step] == kDemoLock)
            DemoLock(step, ++turn);
        else
            DemoMove(step);
        world_.time.Wait(kStepPause);
        world_.time.ProcessEvents();
        narrator_->Look();
    }
    EndDemo();
}

// Locks the card that the step before moved, and deals the script's card of turn `turn`.
void frmGame::DemoLock(std::size_t step, std::size_t turn) {
    picMat_MouseUp(kDemoLock, kLeftButton, 0, 0, 0);
    Show(picMat[kStartCell], {});
    world_.time.ProcessEvents();
    picMat[DemoScriptMoves[step - 1]].Refresh();
    picPreview.Picture({});
    if (turn + 1 >= DemoScriptCards.size()) return Show(picMat[kStartCell], PicClip1.Cell(kCoverKind));
    formFunc_.ShowNextCard(DemoScriptCards[turn + 1]);
    picPreview.Refresh();
    Game().CurrentCard(DemoScriptCards[turn]);
}

void frmGame::DemoMove(std::size_t step) {
    world_.time.ProcessEvents();
    const std::int16_t cell = DemoScriptMoves[step];
    picMat_MouseMove(cell, 0, 0, 0, 0);
    picMat[cell].Refresh();
    if (step > 0 && DemoScriptMoves[step - 1] != kDemoLock) picMat[DemoScriptMoves[step - 1]].Refresh();
}

void frmGame::EndDemo() {
    for (PictureBox& cell : picMat) Show(cell, PicClip1.Cell(kCoverKind));
    SetPlay(Play::Off);  // the board takes nothing until the next game
    boardCovered = true;
    for (Timer* timer : {&Timer1, &Timer2, &Timer3}) timer->Enabled(false);
}

void frmGame::Show(PictureBox& box, const Picture& picture) {
    box.Picture(picture);
    box.Refresh();
}

void frmGame::cmdPrint_Click() {
    const QByteArray text = recording_.AsText();
    const QString path = world_.folder.Path(QStringLiteral("\\array.txt"));
    if (!text.isEmpty() && !AppendToFile(path, text))
        world_.dialogs.Tell(this, QStringLiteral("The recording could not be written to %1.").arg(path));
}
