// The end of a game, the name entry for the four best, and the high-score screen.

#include <QLocale>

#include "screen/Narrator.h"
#include "screen/frmGame.h"
#include "screen/storage/HighScoreTable.h"

namespace {

void EnableMenu(MenuControls& menu, bool enabled) {
    for (Image& button : menu.imgButton) button.Enabled(enabled);
}

}  // namespace

void mdlFormFunc::InitHighScoreTable() {
    CreateHighScores();
}

void mdlFormFunc::GameOver() {
    form_.SetPlay(frmGame::Play::Off);
    CoverBoard();
    ShowNextCard(kCoverKind);
    KeepNothingAside();
    form_.Timer1.Enabled(false);
    form_.Timer2.Enabled(false);
    form_.prbTime.Value(0);
    form_.DropInput();
    form_.TheNarrator().AddEnd();
    form_.TheNarrator().Look();  // before the name entry takes the focus
    if (RowForScore(form_.lblScore.Caption())) form_.AskForName();
}

// Input during the cover was meant for the game, not for the name entry. No timer may run here: a late tick
// would continue the game.
void frmGame::DropInput() {
    covering_ = true;
    world_.time.DropInput();
    covering_ = false;
}

void frmGame::AskForName() {
    const Frame& board = fraScreen[0];
    picEnterName.Left(board.Left() + board.Width() / 2 - picEnterName.Width() / 2);
    picEnterName.Top(board.Top() + board.Height() / 2 - picEnterName.Height() / 2);
    picEnterName.raise();
    picEnterName.Visible(true);
    setFocusProxy(&txtName);  // a click beside the panel, to move the window, keeps the focus
    txtName.setFocus();
    txtName.selectAll();
    EnableMenu(*this, false);
}

void frmGame::cmdOk_Click() {
    const QString today = QLocale().toString(world_.time.Today(), QLocale::ShortFormat);
    EnterHighScore({txtName.Text(), today, lblScore.Caption()});
    setFocusProxy(nullptr);
    EnableMenu(*this, true);
    imgButton[0].setFocus();  // before the field is hidden, which would focus an arbitrary control
    picEnterName.Visible(false);
    imgButton_Click(3);
}

void frmGame::ShowScores() {
    for (int row = 0; row < kHighScores; ++row) {
        const HighScore stored = StoredHighScore(row);
        lblName[row].Caption(stored.name);
        lblDate[row].Caption(stored.date);
        lblHighScore[row].Caption(stored.score);
    }
    picPreview.Picture({});
    prbTime.Value(0);
}
