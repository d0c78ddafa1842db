// Drawing the board. picTemp holds the picture under the active card: a move restores it to the old cell,
// then saves that of the new cell.

#include <cassert>

#include "screen/frmGame.h"

using namespace std::chrono_literals;

namespace {

constexpr QPoint kFrameFrom(2, 2), kFrameTo(58, 58);
constexpr QPoint kWholeFrom(0, 0), kWholeTo(60, 60);
constexpr int kFrameWidth = 3;

// The picture box of a board cell; an invalid number gives the start cell, where drawing does no harm.
PictureBox& Cell(frmGame& form, std::int16_t cell) {
    const bool onBoard = cell >= 0 && cell < kCells;
    assert(onBoard);
    return form.picMat[onBoard ? cell : kStartCell];
}

}  // namespace

void mdlFormFunc::DrawCardMove(std::int16_t newCell, std::int16_t oldCell) {
    MoveActiveCard(newCell, oldCell);
    DrawActiveFrame(newCell);
}

void mdlFormFunc::DrawCardMoveOverCard(std::int16_t newCell, std::int16_t oldCell) {
    MoveActiveCard(newCell, oldCell);
    ShadeActiveCell();
}

void mdlFormFunc::DrawCardOverCard(std::int16_t cell) {
    KeepAside(cell);
    ShowCard(cell, form_.Game().CurrentCard());
    ShadeActiveCell();
}

void mdlFormFunc::ShowActiveCard() {
    const std::int16_t active = form_.Game().PosCurrentCard();
    if (form_.Game().CheckForCard())
        DrawCardOverCard(active);
    else
        ShowCard(active, form_.Game().CurrentCard());
    DrawActiveFrame(active);
}

void mdlFormFunc::MoveActiveCard(std::int16_t newCell, std::int16_t oldCell) {
    Cell(form_, oldCell).Picture(form_.picTemp.Picture());
    KeepAside(newCell);
    ShowCard(newCell, form_.Game().CurrentCard());
}

void mdlFormFunc::ShadeActiveCell() {
    const std::int16_t active = form_.Game().PosCurrentCard();
    Cell(form_, active).DrawFilledBox(kWholeFrom, kWholeTo, kButtonFace);
    DrawActiveFrame(active);
}

void mdlFormFunc::ResetBoardScreen() {
    clsCard& game = form_.Game();
    game.CardsInMatrix(0);
    game.CardsUsed(0);
    game.CardSum(kCardsInGame);
    for (PictureBox& cell : form_.picMat) {
        cell.Picture({});
        cell.DrawMode(DrawMode::MaskPen);
    }
    form_.boardCovered = false;
    KeepNothingAside();
    game.NextCard(kCardKinds);
    game.CurrentCard(game.DrawKind());
    game.PosCurrentCard(kStartCell);
    ShowCard(kStartCell, game.CurrentCard());
    ShowNextCard(game.NextCard());
    DrawActiveFrame(game.PosCurrentCard());
}

void mdlFormFunc::ShowCard(std::int16_t cell, std::int16_t kind) {
    Cell(form_, cell).Picture(form_.PicClip1.Cell(kind));
}

void mdlFormFunc::ClearPicture(std::int16_t cell) {
    Cell(form_, cell).Picture({});
}

void mdlFormFunc::ClearDrawings(std::int16_t cell) {
    Cell(form_, cell).Clear();
}

void mdlFormFunc::DrawActiveFrame(std::int16_t cell) {
    PictureBox& box = Cell(form_, cell);
    box.DrawWidth(kFrameWidth);
    box.DrawBox(kFrameFrom, kFrameTo, kRed);
}

void mdlFormFunc::FlashCell(std::int16_t cell) {
    PictureBox& box = Cell(form_, cell);
    box.DrawFilledBox(kWholeFrom, kWholeTo, kBlack);
    box.Refresh();
    form_.TheWorld().time.Wait(20ms);
}

void mdlFormFunc::KeepAside(std::int16_t cell) {
    form_.picTemp.Picture(Cell(form_, cell).Picture());
}

void mdlFormFunc::KeepNothingAside() {
    form_.picTemp.Picture({});
}

void mdlFormFunc::ShowNextCard(std::int16_t kind) {
    form_.nextCardShown = kind;
    form_.picPreview.Picture(form_.PicClip1.Cell(kind));
}

void mdlFormFunc::CoverBoard() {
    const Picture cover = form_.PicClip1.Cell(kCoverKind);
    for (PictureBox& cell : form_.picMat) {
        cell.DrawFilledBox(kWholeFrom, kWholeTo, kBlack);
        cell.Refresh();
        form_.TheWorld().time.Wait(50ms);
        cell.Picture(cover);
        form_.Game().PlaySoundFromFile("\\wav\\space.wav");
    }
    form_.boardCovered = true;
}
