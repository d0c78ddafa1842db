// The demonstration: a real game, played by feeding the board's mouse handlers from a script. The player's
// input runs inside its event processing and can stop it with StopDemo, which is checked before every step;
// so everything a step uses must live until the demonstration returns.

#include "platform/language/Tesselor.h"
#include "screen/DemoScript.h"
#include "screen/Narrator.h"
#include "screen/frmGame.h"

using namespace std::chrono_literals;

namespace {

constexpr auto kFirstPause = 500ms, kStepPause = 300ms;

// Unlike a property write alone, visible at once.
void Show(PictureBox& box, const Picture& picture) {
    box.Picture(picture);
    box.Refresh();
}

// One run through the script.
class Demonstration {
public:
    Demonstration(frmGame& form, mdlFormFunc& formFunc, Narrator& narrator)
        : form_(form), formFunc_(formFunc), narrator_(narrator), time_(form.TheWorld().time) {}

    void Run();

private:
    void Deal();
    void Step();
    void Lock();
    void Move();
    void End();

    frmGame& form_;
    mdlFormFunc& formFunc_;
    Narrator& narrator_;
    Time& time_;
    std::size_t step_ = 0, turn_ = 0;
};

void Demonstration::Run() {
    for (PictureBox& cell : form_.picMat) Show(cell, {});
    form_.imgButton_Click(0);
    if (form_.play != frmGame::Play::On) return;  // no skin to play with
    form_.StopDemo = false;
    for (PictureBox& cell : form_.picMat) cell.Enabled(false);
    Show(form_.picMat[kStartCell], form_.PicClip1.Cell(DemoScriptCards[0]));
    Deal();
    time_.Wait(kFirstPause);
    for (; step_ < DemoScriptMoves.size(); ++step_) {
        if (form_.StopDemo) return;
        Step();
    }
    End();
}

// Makes the script's card of this turn the active one and shows the card after it.
void Demonstration::Deal() {
    formFunc_.ShowNextCard(DemoScriptCards[turn_ + 1]);
    form_.picPreview.Refresh();
    form_.Game().CurrentCard(DemoScriptCards[turn_]);
}

void Demonstration::Step() {
    form_.Timer1.Enabled(false);
    if (DemoScriptMoves[step_] == kDemoLock)
        Lock();
    else
        Move();
    time_.Wait(kStepPause);
    time_.ProcessEvents();
    narrator_.Look();
}

// Locks the card that the previous step moved, and deals the next one.
void Demonstration::Lock() {
    form_.picMat_MouseUp(kDemoLock, kLeftButton, 0, 0, 0);
    Show(form_.picMat[kStartCell], {});
    time_.ProcessEvents();
    form_.picMat[DemoScriptMoves[step_ - 1]].Refresh();
    form_.picPreview.Picture({});
    ++turn_;
    if (turn_ + 1 < DemoScriptCards.size()) return Deal();
    Show(form_.picMat[kStartCell], form_.PicClip1.Cell(kCoverKind));
}

void Demonstration::Move() {
    time_.ProcessEvents();
    const std::int16_t cell = DemoScriptMoves[step_];
    form_.picMat_MouseMove(cell, 0, 0, 0, 0);
    form_.picMat[cell].Refresh();
    if (step_ > 0 && DemoScriptMoves[step_ - 1] != kDemoLock)
        form_.picMat[DemoScriptMoves[step_ - 1]].Refresh();
}

void Demonstration::End() {
    for (PictureBox& cell : form_.picMat) Show(cell, form_.PicClip1.Cell(kCoverKind));
    form_.SetPlay(frmGame::Play::Off);  // no board input until the next game
    form_.boardCovered = true;
    for (Timer* timer : {&form_.Timer1, &form_.Timer2, &form_.Timer3}) timer->Enabled(false);
}

}  // namespace

void frmGame::cmdDemo_Click() {
    if (demoRuns_) return;
    demoRuns_ = true;
    Demonstration(*this, formFunc_, *narrator_).Run();
    demoRuns_ = false;
    if (unloaded_) game_.reset();
}

void frmGame::cmdPrint_Click() {
    const QByteArray text = recording_.AsText();
    const QString path = world_.folder.Path(QStringLiteral("\\array.txt"));
    if (!text.isEmpty() && !AppendToFile(path, text))
        world_.dialogs.Tell(this, Tesselor::tr("The recording could not be written to %1.").arg(path));
}
