#include "screen/frmGame.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMouseEvent>
#include <QTimer>

#include "platform/language/Tesselor.h"
#include "screen/Look.h"
#include "screen/Narrator.h"
#include "screen/Words.h"
#include "screen/frmInfo.h"
#include "shell/mdlSound.h"

frmGame::frmGame(World world)
    : WindowControls(this),
      BoardControls(this),
      ChoiceControls(&fraScreen[1]),
      HelpControls(&fraScreen[2]),
      ScoreControls(&fraScreen[3]),
      MenuControls(this, &fraScreen[2]),
      NameControls(this),
      world_(std::move(world)) {
    access = {QAccessible::Window,
              Fixed(QStringLiteral("Tesselor"))};  // before Qt tells of the window's title
    setObjectName(QStringLiteral("frmGame"));
    setWindowTitle(QStringLiteral("Tesselor"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    ConnectWindow(*this);
    ConnectBoard(*this);
    ConnectChoices(*this);
    ConnectHelp(*this);
    ConnectScores(*this);
    ConnectMenu(*this);
    ConnectNameEntry(*this);
    ConnectPauseKey();
    OrderControls();
    Form_Load();
    narrator_ = std::make_unique<Narrator>(*this);
}

frmGame::~frmGame() = default;

void frmGame::Form_Load() {
    formFunc_.InitHighScoreTable();
    mdlSound::LoadWaves();
    WindowShape::Apply(*this);
    WindowShape::KeepOnScreens(*this);
    lblCaption[2].ForeColor(Look::kLitCaption);
    CurrentMenu = 2;
    lblHelpText1.Caption(
        Tesselor::tr("Line up cards by : color, shape, quantity or series \r\n"
                     "1,2,3,4. For high score make multiple combinations"));
    game_ = std::make_unique<clsCard>(formFunc_, world_.random);
    SetPlay(Play::Off);  // until "play" there is nothing to move
    FillSkinSlots();
    LayScreens();
    fraScreen[2].Visible(true);
    lblClass[0].ForeColor(kRed);
    lblLevelName.Caption(lblClass[0].Caption());
    lblLevelBack.Caption(lblClass[0].Caption());
    Shape1.Left(lblClass[0].Left() - 2 * Shape1.Width());
    Shape1.Top(lblClass[0].Top() + Shape1.Height());
    shpTime.Visible(false);
    prbTime.Visible(false);
    Game().SetLevel(0);
}

// Stacks the four screens and aligns the board's surroundings with them.
void frmGame::LayScreens() {
    const Frame& board = fraScreen[0];
    const PictureBox& first = picMat[0];
    for (Frame& screen : fraScreen) {
        screen.Visible(false);
        screen.Top(board.Top() + first.Top() + kTwipsPerPixel);
        screen.Left(board.Left() + first.Left() + kTwipsPerPixel);
        picPreview.Left(first.Left() + board.Left() + 10);
        shpRect.Top(first.Top() + board.Top());
        shpRect.Left(first.Left() + board.Left());
        shpRect.Height(picMat[12].Top() + picMat[12].Height() - 40);
        shpRect.Width(picMat[3].Left() + picMat[3].Width() - 5);
    }
}

void frmGame::Form_Unload(std::int16_t& /*Cancel*/) {
    StopDemo = true;
    unloaded_ = true;
    ++clicks_;
    Timer1.Enabled(false);
    Timer2.Enabled(false);
    if (!demoRuns_ && !covering_) game_.reset();
}

void frmGame::SetPlay(Play now) {
    play = now;
    Game().RndAction(now != Play::On);
}

bool frmGame::IsOccupied(std::int16_t cell) const {
    return game_ && game_->CardAt(cell).Quantity != kNoCard;
}

std::int16_t frmGame::ActiveCell() const {
    return game_ && play == Play::On ? game_->PosCurrentCard() : std::int16_t{-1};
}

void frmGame::Form_MouseDown(std::int16_t Button, std::int16_t, float X, float Y) {
    move_.Press(*this, mapToGlobal(QPointF(X, Y).toPoint()), Button);
}

void frmGame::mousePressEvent(QMouseEvent* event) {
    const MouseInput in = ToMouseInput(*event);
    Form_MouseDown(in.button, in.shift, in.x, in.y);
}

void frmGame::mouseMoveEvent(QMouseEvent* event) {
    move_.Move(*this, event->globalPosition().toPoint());
}

void frmGame::mouseReleaseEvent(QMouseEvent* /*event*/) {
    move_.Release();
}

void frmGame::closeEvent(QCloseEvent* event) {
    std::int16_t cancel = 0;
    Form_Unload(cancel);
    event->setAccepted(cancel == 0);
}

// The window is on screen once this returns, so decode the skins after that.
void frmGame::paintEvent(QPaintEvent* /*event*/) {
    if (!skinsFinished_) QTimer::singleShot(0, this, [this] { FinishSkinSlots(); });
}
