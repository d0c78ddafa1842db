#pragma once

#include <array>
#include <memory>

#include "platform/PictureSheet.h"
#include "tools/display/RealWindow.h"
#include "tools/display/Spots.h"
#include "tools/display/VirtualDisplay.h"

// A player before the real window: starts the game on a display of its own, recognises cards by their
// pictures and plays with keys and mouse. Knows of the game only what is to be seen.
class Player {
public:
    // scale: the desktop's scale, 1 or 2. home: the program's folder; the one it finds itself when empty.
    // program: that of the build when empty. Scores are kept in a folder of the player's own.
    explicit Player(int scale, const QString& home = {}, const QString& program = {});
    ~Player();

    // A cell as it is seen: a kind 0..38, nothing, or something that is neither (mid-change).
    static constexpr int kNothing = -1, kUnclear = -2;
    [[nodiscard]] int CardAt(int cell) const;
    [[nodiscard]] std::array<int, 16> Board() const;
    [[nodiscard]] bool IsFramed(int cell) const;  // with the red frame of the active card
    [[nodiscard]] bool IsBlack(int cell) const;
    // The cells that no panel hides all show the cover picture.
    [[nodiscard]] bool IsCovered() const;
    [[nodiscard]] int NextCard() const;  // in the preview

    // Waits until the new card lies framed in the start cell and nothing is black, or the board is covered.
    bool AwaitTurn();
    // Whether a cell was seen black while a turn was awaited: the flash of a line that goes.
    [[nodiscard]] bool SawFlash() const { return sawFlash_; }
    // Waits until what is shown differs from `before`.
    bool AwaitChange(const QImage& before) const;

    void MoveByKeys(int to) const;
    // False when the mouse is in the cell already: the game takes no notice then.
    bool MoveByMouse(int to);
    void Click(QPoint at, unsigned button = 1) const { window_->Click(at * scale_, button); }
    void Click(const QRect& control) const { Click(control.center()); }
    void ClickCell(int cell, unsigned button = 1) const { Click(Spot::Cell(cell).center(), button); }
    // Saves what is shown as <TESSELOR_SHOTS>/<name>@<scale>.png, when that folder is named.
    void Photograph(const char* name) const;

    [[nodiscard]] const VirtualDisplay& Display() const { return display_; }
    [[nodiscard]] RealWindow& Window() const { return *window_; }
    [[nodiscard]] QRect Cell(int cell) const;  // the drawing area, in device pixels
    [[nodiscard]] int Scale() const { return scale_; }
    // Clicks the exit and waits for the end: the exit status of the game, -1 when it does not end.
    int Leave();
    int AwaitEnd();
    [[nodiscard]] qint64 Process() const { return game_.processId(); }
    // From then on nobody but the test gives the keyboard away or has a say in the mouse.
    void EndWindowManager();
    // Ends the X server under the game; nothing is to be seen from then on.
    void KillDisplay();

private:
    int scale_;
    VirtualDisplay display_;
    QProcess game_;
    std::unique_ptr<RealWindow> window_;
    std::array<QImage, kSheetCells> cards_;
    bool sawFlash_ = false;
    int mouseCell_ = 0;  // where the game takes the mouse to be at first
};
