// The end of a game and the table of the four best.

#include "screen/frmGame.h"

void mdlFormFunc::InitHighScoreTable() {}

void mdlFormFunc::GameOver() {
    form_.Game().RndAction(true);
    form_.play = frmGame::Play::Off;
    CoverBoard();
    ShowNextCard(kCoverKind);
    KeepNothingAside();
    form_.Timer1.Enabled(false);
    form_.Timer2.Enabled(false);
    form_.prbTime.Value(0);
}
