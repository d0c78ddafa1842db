#pragma once

#include <QWidget>

#include "platform/controls/Frame.h"
#include "platform/controls/PictureBox.h"
#include "screen/ControlArray.h"

class frmGame;

// The four screens, of which the first is the board, and the board's cells. Start-up stacks the screens.
struct BoardControls {
    explicit BoardControls(QWidget* window);

    ControlArray<Frame, 4> fraScreen;
    ControlArray<PictureBox, 16> picMat{"picMat", Grid<16>(&fraScreen[0], {0, 0, 960, 960}, 4, 990, 990), 2};

protected:
    void ConnectBoard(frmGame& form);
};
