#pragma once

#include <QWidget>

#include "platform/controls/Image.h"
#include "platform/controls/Label.h"
#include "platform/controls/Shape.h"
#include "screen/ControlArray.h"

class frmGame;

// The menu: play, menu, help and score on the window's bar, and "more" on the help screen. Image2 of the
// window shows the bar; the lit caption is that of the current screen.
struct MenuControls {
    MenuControls(QWidget* window, QWidget* help);

    ControlArray<Shape, 5> shpArea;
    ControlArray<Label, 5> lblCaption;
    ControlArray<Image, 5> imgButton;

protected:
    void ConnectMenu(frmGame& form);
};
