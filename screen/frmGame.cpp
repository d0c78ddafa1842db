#include "screen/frmGame.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMouseEvent>
#include <QTimer>

#include "screen/Look.h"
#include "screen/Narrator.h"
#include "screen/frmInfo.h"
#include "shell/mdlSound.h"

namespace {

// Binds a handler of a control array to each of its elements.
template <class Array, class Handler>
void OnEach(Array& controls,
            std::function<void(const MouseInput&)> std::decay_t<decltype(controls[0])>::*slot, frmGame* form,
            Handler handler) {
    for (std::size_t i = 0; i < controls.size(); ++i) {
        const auto index = static_cast<std::int16_t>(i);
        controls[i].*slot = [form, handler, index](const MouseInput& in) {
            (form->*handler)(index, in.button, in.shift, in.x, in.y);
        };
    }
}

}  // namespace

frmGame::frmGame(World world) : world_(std::move(world)) {
    setObjectName(QStringLiteral("frmGame"));
    setWindowTitle(QStringLiteral("Tesselor"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    DressControls();
    ConnectControls();
    DescribeControls();
    OrderControls();
    Form_Load();
    narrator_ = std::make_unique<Narrator>(*this);
}

frmGame::~frmGame() = default;

void frmGame::Form_Load() {
    formFunc_.InitHighScoreTable();
    mdlSound::LoadWaves();
    WindowShape::Apply(*this);
    lblCaption[2].ForeColor(Look::kLitCaption);
    CurrentMenu = 2;
    lblHelpText1.Caption(
        QStringLiteral("Line up cards by : color, shape, quantity or series \r\n"
                       "1,2,3,4. For high score make multiple combinations"));
    game_ = std::make_unique<clsCard>(formFunc_, world_.random);
    Game().RndAction(true);  // until "play" there is nothing to move
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

// Brings the four screens over one another and what belongs to the board around it.
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
    Timer1.Enabled(false);
    Timer2.Enabled(false);
    if (!demoRuns_) game_.reset();
}

void frmGame::ConnectControls() {
    OnEach(picMat, &PictureBox::onMouseDown, this, &frmGame::picMat_MouseDown);
    OnEach(picMat, &PictureBox::onMouseUp, this, &frmGame::picMat_MouseUp);
    OnEach(picMat, &PictureBox::onMouseMove, this, &frmGame::picMat_MouseMove);
    OnEach(picSkin, &PictureBox::onMouseUp, this, &frmGame::picSkin_MouseUp);
    OnEach(picSkin, &PictureBox::onMouseMove, this, &frmGame::picSkin_MouseMove);
    OnEach(imgButton, &Image::onMouseDown, this, &frmGame::imgButton_MouseDown);
    OnEach(imgButton, &Image::onMouseUp, this, &frmGame::imgButton_MouseUp);
    OnEach(lblClass, &Label::onMouseMove, this, &frmGame::lblClass_MouseMove);
    for (std::int16_t i = 0; i < 5; ++i) {
        imgButton[static_cast<std::size_t>(i)].onClick = [this, i] { imgButton_Click(i); };
        lblClass[static_cast<std::size_t>(i)].onClick = [this, i] { lblClass_Click(i); };
    }
    for (std::size_t i = 0; i < picSkin.size(); ++i)
        picSkin[i].OnFileDrop([this, i](const QString& path) {
            auto index = static_cast<std::int16_t>(i);
            std::int32_t effect = 0;
            picSkin_OLEDragDrop(index, path, effect, 0, 0, 0, 0);
        });
    Image1.onClick = [this] { Image1_Click(); };
    imgMinimaize.onClick = [this] { imgMinimaize_Click(); };
    imgWebLink.onClick = [this] { imgWebLink_Click(); };
    Label14.onClick = [this] { Label14_Click(); };
    Label4.onClick = [this] { Label4_Click(); };
    Label17.onClick = [this] { Label17_Click(); };
    connect(&cmdHelp, &QPushButton::clicked, this, &frmGame::cmdHelp_Click);
    connect(&cmdDemo, &QPushButton::clicked, this, &frmGame::cmdDemo_Click);
    connect(&cmdPrint, &QPushButton::clicked, this, &frmGame::cmdPrint_Click);
    connect(&cmdOk, &QPushButton::clicked, this, &frmGame::cmdOk_Click);
    connect(&txtName, &QLineEdit::returnPressed, this, &frmGame::cmdOk_Click);
}

void frmGame::Form_MouseDown(std::int16_t Button, std::int16_t, float X, float Y) {
    move_.Press(*this, mapToGlobal(QPointF(X, Y).toPoint()), Button == kLeftButton);
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

// The window has its first picture on the screen when this returns: now the skins may take their time.
void frmGame::paintEvent(QPaintEvent* /*event*/) {
    if (!skinsFinished_) QTimer::singleShot(0, this, [this] { FinishSkinSlots(); });
}
