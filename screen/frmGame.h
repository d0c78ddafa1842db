#pragma once

#include <QWidget>
#include <array>
#include <cstdint>
#include <memory>

#include "model/clsCard.h"
#include "platform/Button.h"
#include "platform/Frame.h"
#include "platform/Image.h"
#include "platform/KeyboardFocus.h"
#include "platform/Label.h"
#include "platform/LineLabel.h"
#include "platform/PictureBox.h"
#include "platform/PictureClip.h"
#include "platform/Shape.h"
#include "platform/Timer.h"
#include "screen/ControlArray.h"
#include "screen/Recording.h"
#include "screen/TimeBar.h"
#include "screen/World.h"
#include "screen/mdlFormFunc.h"
#include "shell/WindowShape.h"

class Narrator;
class frmInfo;

// The program's one game window: the board, the menu bar and four screens that replace one another in the
// same place. Its handlers are public and callable directly, with made-up arguments too: an index outside a
// control array does nothing, unless the handler says otherwise.
//
// The handlers are in one file a subject: Menu, TurnCycle, Skins, HighScores, Demo, Help, Keyboard; what the
// model asks for is in mdlFormFunc (Drawing), what assistive technology reads in Spoken and Narrator. This
// file's own source builds the window and runs its set-up.
class frmGame final : public QWidget, public HasAccess {
public:
    // Builds the window and runs Form_Load. Nothing is shown yet.
    explicit frmGame(World world);
    ~frmGame() override;

    // The set-up, once: window shape, model, skins, the four screens over one another, the help screen shown.
    void Form_Load();
    void Form_Resize() {}
    // Stops what runs and releases the model. Never cancels.
    void Form_Unload(std::int16_t& Cancel);

    // --- the turn cycle (TurnCycle.cpp) ---
    // KeyCode: a virtual-key code; Shift is not used.
    void Form_KeyDown(std::int16_t KeyCode, std::int16_t Shift);
    void picMat_MouseDown(std::int16_t Index, std::int16_t Button, std::int16_t Shift, float X, float Y);
    void picMat_MouseMove(std::int16_t Index, std::int16_t Button, std::int16_t Shift, float X, float Y);
    // Locks the active card where it is; Index may be any number.
    void picMat_MouseUp(std::int16_t Index, std::int16_t Button, std::int16_t Shift, float X, float Y);
    // Moves the active card into `cell` (0..15) and locks it there, as a click in that cell does, wherever
    // the mouse is. For assistive technology.
    void LockInCell(std::int16_t cell);
    void Timer1_Timer();
    void Timer2_Timer();

    // --- menu and levels (Menu.cpp) ---
    void imgButton_Click(std::int16_t Index);
    void imgButton_MouseDown(std::int16_t Index, std::int16_t Button, std::int16_t Shift, float X, float Y);
    void imgButton_MouseUp(std::int16_t Index, std::int16_t Button, std::int16_t Shift, float X, float Y);
    void lblClass_Click(std::int16_t Index);
    void lblClass_MouseMove(std::int16_t Index, std::int16_t Button, std::int16_t Shift, float X, float Y);
    void Image1_Click();
    void imgMinimaize_Click();

    // --- skins (Skins.cpp) ---
    // Takes the skins of the folder "\Art\" into the slots, by their heads alone.
    void FillSkinSlots();
    // Reads the skins to their end, draws their thumbnails and closes up the slots of damaged ones. Runs
    // once, after the window's first paint or when the skins are first needed.
    void FinishSkinSlots();
    void picSkin_MouseMove(std::int16_t Index, std::int16_t Button, std::int16_t Shift, float X, float Y);
    void picSkin_MouseUp(std::int16_t Index, std::int16_t Button, std::int16_t Shift, float X, float Y);

    // A file was dropped on slot Index, which becomes the slot it ends up in: on an empty slot, the first
    // empty one. Data: its path. It is moved into the skin folder and chosen.
    void picSkin_OLEDragDrop(std::int16_t& Index, const QString& Data, std::int32_t& Effect,
                             std::int16_t Button, std::int16_t Shift, float X, float Y);

    // --- the demonstration and the recording (Demo.cpp) ---
    // Plays the built-in game; returns when it has ended or was asked to. A call while one runs does nothing.
    void cmdDemo_Click();
    // Adds the recording of this run to the file "\\array.txt".
    void cmdPrint_Click();

    // --- high scores (HighScores.cpp) ---
    // Opens the name entry over the board; until its OK button the menu is closed.
    void AskForName();
    // Enters the score with the name typed, closes the name entry and shows the table.
    void cmdOk_Click();

    // --- help, links and the information window (Help.cpp) ---
    void cmdHelp_Click();
    void Label14_Click();
    void Label4_Click();
    void Label17_Click();
    void imgWebLink_Click();

    // --- the window itself ---
    // A press on the background: the window moves with the mouse.
    void Form_MouseDown(std::int16_t Button, std::int16_t Shift, float X, float Y);
    void Form_MouseMove(std::int16_t, std::int16_t, float, float) {}

    [[nodiscard]] clsCard& Game() { return *game_; }
    [[nodiscard]] World& TheWorld() { return world_; }

    // What a game is doing, as far as the screen goes.
    enum class Play { Off, On, Paused };
    Play play = Play::Off;

    bool StopDemo = false;         // request to end a running demonstration
    std::int16_t CurrentMenu = 2;  // index of the highlighted caption
    std::int16_t CurrentLevel = 0, HoverLevel = 0;
    std::int16_t SkinCount = 0, CurrentSkin = 0, HoverSkin = 0;
    std::int16_t HoverCell = 0;        // the cell into which the mouse last moved the active card
    std::array<QString, 12> skinFile;  // the file name of each slot

private:
    World world_;

    static Holders Inside(QWidget& holder) {
        return [&holder](int) { return &holder; };
    }
    // The menu's elements 0..3 are on the window, element 4 is inside the help screen.
    Holders MenuHolder() {
        return [this](int index) { return index == 4 ? &fraScreen[2] : static_cast<QWidget*>(this); };
    }

public:
    // Controls; a holder stands before what it holds. What is created later lies above.
    Image Background{this, {QStringLiteral("Background"), {0, 0, 5985, 6165}, {}}};
    Label lblSerieScore{this, Design("lblSerieScore")}, lblCardsInMatrix{this, Design("lblCardsInMatrix")};
    Label lblLevelBack{this, Design("lblLevelBack")}, lblLevelName{this, Design("lblLevelName")};
    Label Label1{this, Design("Label1")}, Label2{this, Design("Label2")}, Label5{this, Design("Label5")};
    Label lblHelp{this, Design("lblHelp")}, Label8{this, Design("Label8")}, Label9{this, Design("Label9")};
    Label Label10{this, Design("Label10")}, Label11{this, Design("Label11")},
        Label12{this, Design("Label12")};
    Image Image3{this, Design("Image3")}, Image4{this, Design("Image4")};
    Label Label16{this, Design("Label16")}, Label17{this, Design("Label17")};
    Label lblCardsLeft{this, Design("lblCardsLeft")}, lblScore{this, Design("lblScore")};
    Image Image1{this, Design("Image1")}, imgMinimaize{this, Design("imgMinimaize")};
    Image imgWebLink{this, Design("imgWebLink")}, Image2{this, Design("Image2")};
    Shape shpTime{this, Design("shpTime")}, shpRect{this, Design("shpRect")};
    TimeBar prbTime{this, Design("prbTime"), TimeBarDesign()};
    PictureBox Picture4{this, Design("Picture4")};
    PictureBox picPreview{this, Design("picPreview"), 2};
    Label lblNextCard{&picPreview, Design("lblNextCard")};
    PictureBox picTemp{this, Design("picTemp"), 2};
    CommandButton cmdPrint{this, Design("cmdPrint")};

    std::array<Frame, 4> fraScreen = ControlArray<Frame, 4>("fraScreen", Inside(*this));
    std::array<PictureBox, 16> picMat = ControlArray<PictureBox, 16>("picMat", Inside(fraScreen[0]), 2);

    Label Label6{&fraScreen[1], Design("Label6")}, Label7{&fraScreen[1], Design("Label7")};
    Frame Picture3{&fraScreen[1], Design("Picture3")}, Picture1{&fraScreen[1], Design("Picture1")};
    Shape shpLevel{&Picture3, Design("shpLevel")};  // behind the chosen level
    std::array<Label, 5> lblClass = ControlArray<Label, 5>("lblClass", Inside(Picture3));
    Shape Shape1{&Picture3, Design("Shape1")};
    std::array<PictureBox, 12> picSkin = ControlArray<PictureBox, 12>("picSkin", Inside(Picture1));
    PictureBox picCurrSkin{&fraScreen[1], Design("picCurrSkin")};
    Label lblSkinName{&fraScreen[1], Design("lblSkinName")};
    Label Label13{&fraScreen[1], Design("Label13")}, Label14{&fraScreen[1], Design("Label14")};

    Label lblHelpText1{&fraScreen[2], Design("lblHelpText1")};
    std::array<Image, 3> imgMouse = ControlArray<Image, 3>("imgMouse", Inside(fraScreen[2]));
    Label lblHelpText2{&fraScreen[2], Design("lblHelpText2")};
    Label lblHelpText3{&fraScreen[2], Design("lblHelpText3")};
    Label lblHelpText4{&fraScreen[2], Design("lblHelpText4")};
    std::array<Shape, 3> shpKey = ControlArray<Shape, 3>("shpKey", Inside(fraScreen[2]));
    std::array<Label, 3> lblKey = ControlArray<Label, 3>("lblKey", Inside(fraScreen[2]));
    Image Picture2{&fraScreen[2], Design("Picture2")}, imgErasor{&fraScreen[2], Design("imgErasor")};
    Label lblActiveCard{&fraScreen[2], Design("lblActiveCard")},
        lblErasor{&fraScreen[2], Design("lblErasor")};
    CommandButton cmdHelp{&fraScreen[2], Design("cmdHelp")}, cmdDemo{&fraScreen[2], Design("cmdDemo")};

    Label lblCName{&fraScreen[3], Design("lblCName")}, lblCDate{&fraScreen[3], Design("lblCDate")};
    Label lblCHighScore{&fraScreen[3], Design("lblCHighScore")};
    std::array<LineLabel, 4> lblName = ControlArray<LineLabel, 4>("lblName", Inside(fraScreen[3]));
    std::array<LineLabel, 4> lblDate = ControlArray<LineLabel, 4>("lblDate", Inside(fraScreen[3]));
    std::array<LineLabel, 4> lblHighScore = ControlArray<LineLabel, 4>("lblHighScore", Inside(fraScreen[3]));
    Shape Line2{&fraScreen[3], Design("Line2")}, Line4{&fraScreen[3], Design("Line4")};
    Shape Line5{&fraScreen[3], Design("Line5")}, Line6{&fraScreen[3], Design("Line6")};
    Shape Line7{&fraScreen[3], Design("Line7")};
    Label Label15{&fraScreen[3], Design("Label15")}, Label4{&fraScreen[3], Design("Label4")};

    std::array<Shape, 5> shpArea = ControlArray<Shape, 5>("shpArea", MenuHolder());
    std::array<Label, 5> lblCaption = ControlArray<Label, 5>("lblCaption", MenuHolder());
    std::array<Image, 5> imgButton = ControlArray<Image, 5>("imgButton", MenuHolder());

    Frame picEnterName{this, Design("picEnterName")};
    std::array<Shape, 2> shpEnterName = ControlArray<Shape, 2>("shpEnterName", Inside(picEnterName));
    Label Label3{&picEnterName, Design("Label3")};
    TextBox txtName{&picEnterName, Design("txtName")};
    CommandButton cmdOk{&picEnterName, Design("cmdOk")};

    FocusRing focusRing{this};

    PictureClip PicClip1, PicClipTemp;
    Timer Timer1{world_.time, [this] { Timer1_Timer(); }};
    Timer Timer2{world_.time, [this] { Timer2_Timer(); }};
    Timer Timer3{world_.time, [] {}, 400};

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    // Fonts, colours and pictures (Dress.cpp).
    void DressControls();
    void DressWindow();
    void DressBoard();
    void DressSkinScreen();
    void DressHelpScreen();
    void DressScoreScreen();
    void DressNameEntry();

    // What the controls are in words (Spoken.cpp).
    void DescribeControls();
    void DescribeBoard();
    void DescribeMenu();
    void DescribeScreens();

    void ConnectControls();
    void LayScreens();

    // Which controls take the keyboard, and in what order (Keyboard.cpp).
    void OrderControls();
    void OrderSkinSlots();
    [[nodiscard]] bool BoardTakesKeys() const;

    void ShowScreen(std::int16_t index);
    // The action of a menu button; the failure as a sentence for the player, empty when it went well.
    QString RunAction(std::int16_t menu);
    QString StartGame();
    QString LoadSkin();
    void ShowMenu();
    void ShowHelp();
    void ShowScores();
    void EnableMenu(bool enabled);
    void Highlight(std::int16_t menu);

    void Pause();
    void Resume();
    void GiveBackActiveCell();
    void RunDemo();
    void DemoLock(std::size_t step, std::size_t turn);
    void DemoMove(std::size_t step);
    void EndDemo();
    static void Show(PictureBox& box, const Picture& picture);  // at once

    void ShowInfo();

    void ChooseSkin(std::int16_t slot);
    void CloseUpSlot(std::int16_t slot);
    void FillSlot(std::int16_t slot, const QString& file);
    QString Install(const QString& dropped, const QString& folder, std::int16_t slot);

    mdlFormFunc formFunc_{*this};
    std::unique_ptr<clsCard> game_;
    WindowMove move_;
    bool timersPaused_ = false;  // the pause stopped running timers, so a resume starts them again
    bool skinsFinished_ = false;
    Recording recording_;
    bool demoRuns_ = false;
    bool unloaded_ = false;  // the model has gone, or goes when the demonstration that runs has unwound
    std::unique_ptr<frmInfo> info_;
    std::unique_ptr<Narrator> narrator_;
};
