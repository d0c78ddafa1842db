#pragma once

#include <QWidget>
#include <array>
#include <cstdint>
#include <memory>

#include "model/clsCard.h"
#include "platform/controls/KeyboardFocus.h"
#include "platform/desktop/Timer.h"
#include "platform/pictures/PictureClip.h"
#include "screen/World.h"
#include "screen/controls/BoardControls.h"
#include "screen/controls/ChoiceControls.h"
#include "screen/controls/HelpControls.h"
#include "screen/controls/MenuControls.h"
#include "screen/controls/NameControls.h"
#include "screen/controls/ScoreControls.h"
#include "screen/controls/WindowControls.h"
#include "screen/mdlFormFunc.h"
#include "screen/storage/Recording.h"
#include "shell/WindowShape.h"

class Narrator;
class frmInfo;

inline constexpr std::int16_t kKeyPause = 80;  // the virtual-key code of the letter P

// The program's only game window: the board, the menu bar and four screens that share one place. Its handlers
// are public and can be called directly, with any arguments: an index outside a control array does nothing
// unless noted.
//
// The controls are in screen/controls, one file for each part of the window: geometry, look, accessible names
// and connections to the handlers. The handlers are in one file per subject: Menu, TurnCycle, Skins,
// HighScores, Demo, Help, Keyboard; mdlFormFunc (Drawing, TurnCycle, HighScores) serves the model. Controls
// created later are on top, so the order of the bases is the stacking order.
class frmGame final : public QWidget,
                      public HasAccess,
                      public WindowControls,
                      public BoardControls,
                      public ChoiceControls,
                      public HelpControls,
                      public ScoreControls,
                      public MenuControls,
                      public NameControls {
public:
    // Builds the window and runs Form_Load. Nothing is shown yet.
    explicit frmGame(World world);
    ~frmGame() override;

    // Sets up the window, once: its shape, the model, the skins and the screens. Shows the help screen.
    void Form_Load();
    void Form_Resize() {}
    // Stops everything that runs and releases the model. Never cancels.
    void Form_Unload(std::int16_t& Cancel);

    // --- the turn cycle (TurnCycle.cpp) ---
    // KeyCode: a virtual-key code; Shift is not used.
    void Form_KeyDown(std::int16_t KeyCode, std::int16_t Shift);
    void picMat_MouseDown(std::int16_t Index, std::int16_t Button, std::int16_t Shift, float X, float Y);
    void picMat_MouseMove(std::int16_t Index, std::int16_t Button, std::int16_t Shift, float X, float Y);
    // Locks the active card where it is; Index may be any number.
    void picMat_MouseUp(std::int16_t Index, std::int16_t Button, std::int16_t Shift, float X, float Y);
    // Moves the active card into `cell` (0..15) and locks it there, like a click in that cell. For assistive
    // technology.
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
    // Lists the skins of the folder "\Art\" in the slots; reads only their headers.
    void FillSkinSlots();
    // Decodes the skins, draws their thumbnails and removes the slots of damaged ones. Runs once, after the
    // window's first paint or when the skins are first needed.
    void FinishSkinSlots();
    void picSkin_MouseMove(std::int16_t Index, std::int16_t Button, std::int16_t Shift, float X, float Y);
    void picSkin_MouseUp(std::int16_t Index, std::int16_t Button, std::int16_t Shift, float X, float Y);

    // Moves the dropped file with the path Data into the skin folder and chooses it. Index: the slot it was
    // dropped on, set to the one it gets: in place of an empty slot, the first empty one.
    void picSkin_OLEDragDrop(std::int16_t& Index, const QString& Data, std::int32_t& Effect,
                             std::int16_t Button, std::int16_t Shift, float X, float Y);

    // --- the demonstration and the recording (Demo.cpp) ---
    // Plays the built-in game until it ends or StopDemo is set. A call while it runs does nothing.
    void cmdDemo_Click();
    // Appends the recording of this run to the file "\\array.txt".
    void cmdPrint_Click();

    // --- high scores (HighScores.cpp) ---
    // Handles pending events at the end of a game, but drops the player's input.
    void DropInput();
    // Opens the name entry over the board and disables the menu until OK.
    void AskForName();
    // Enters the score under the typed name, closes the name entry and shows the table.
    void cmdOk_Click();

    // --- help, links and the information window (Help.cpp) ---
    void cmdHelp_Click();
    void Label14_Click();
    void Label4_Click();
    void Label17_Click();
    void imgWebLink_Click();

    // --- the window itself ---
    // A press on the background, which moves the window.
    void Form_MouseDown(std::int16_t Button, std::int16_t Shift, float X, float Y);
    void Form_MouseMove(std::int16_t, std::int16_t, float, float) {}

    // The model, from Form_Load to Form_Unload.
    [[nodiscard]] clsCard& Game() { return *game_; }
    [[nodiscard]] const clsCard& Game() const { return *game_; }
    [[nodiscard]] World& TheWorld() { return world_; }
    [[nodiscard]] Narrator& TheNarrator() { return *narrator_; }

    // The state of the game on screen.
    enum class Play { Off, On, Paused };
    Play play = Play::Off;
    bool boardCovered = false;        // by the cover picture, in a pause and after a game
    std::int16_t nextCardShown = -1;  // the kind in the preview
    // Also locks the board's input unless the game is on.
    void SetPlay(Play now);

    // The board on screen: whether `cell` holds a locked card, whether it holds the active one, and the
    // active card's cell, -1 for none.
    [[nodiscard]] bool IsOccupied(std::int16_t cell) const;
    [[nodiscard]] bool IsActive(std::int16_t cell) const { return cell >= 0 && cell == ActiveCell(); }
    [[nodiscard]] std::int16_t ActiveCell() const;

    bool StopDemo = false;         // request to end a running demonstration
    std::int16_t CurrentMenu = 2;  // index of the highlighted caption
    std::int16_t CurrentLevel = 0, HoverLevel = 0;
    std::int16_t SkinCount = 0, CurrentSkin = 0, HoverSkin = 0;
    std::int16_t HoverCell = 0;              // the cell the mouse last moved the active card to
    QStringList skinFile = QStringList(12);  // the file name of each slot

private:
    World world_;

public:
    FocusRing focusRing{this};

    PictureClip PicClip1;
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
    void LayScreens();

    // --- keyboard focus (Keyboard.cpp) ---
    void ConnectPauseKey();
    void OrderControls();
    void OrderSkinSlots();
    [[nodiscard]] bool BoardTakesKeys() const;

    // --- menu actions (Menu.cpp; ShowScores in HighScores.cpp, ShowInfo in Help.cpp) ---
    void ShowScreen(std::int16_t index);
    // Runs a menu button's action. Returns the failure as a sentence for the player, empty on success.
    QString RunAction(std::int16_t menu);
    QString StartGame();
    void ShowMenu();
    void ShowHelp();
    void ShowScores();
    void ShowInfo();
    void Highlight(std::int16_t menu);

    // --- the turn cycle (TurnCycle.cpp) ---
    void Pause();
    void Resume();
    void GiveBackActiveCell();

    // --- skins (Skins.cpp) ---
    QString LoadSkin();
    void ChooseSkin(std::int16_t slot);
    void ChooseNoSkin();
    template <class Loaded>
    Loaded InBackground(Loaded (*load)(const QString& path, QString& why), const QString& path, QString& why);
    void ShowInSlot(std::int16_t slot, const Picture& thumbnail);
    void CloseUpSlot(std::int16_t slot);
    QString Install(const PictureSheet& sheet, const QString& dropped, const QString& folder,
                    std::int16_t slot);

    mdlFormFunc formFunc_{*this};
    std::unique_ptr<clsCard> game_;
    WindowMove move_;
    Recording recording_;
    std::unique_ptr<frmInfo> info_;
    std::unique_ptr<Narrator> narrator_;
    bool timersPaused_ = false;  // the pause stopped running timers, so a resume starts them again
    bool skinsFinished_ = false;
    int clicks_ = 0;  // of menu buttons, to detect another one while a skin is read
    bool demoRuns_ = false;
    bool covering_ = false;  // the end of a game, called by the model, is dropping input
    bool unloaded_ = false;  // the model is gone, or goes when the demonstration returns
};
