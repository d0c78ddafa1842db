#pragma once

#include <QWidget>

#include "platform/controls/Button.h"
#include "platform/controls/Frame.h"
#include "platform/controls/Label.h"
#include "platform/controls/Shape.h"
#include "platform/language/Tesselor.h"
#include "screen/ControlArray.h"

class frmGame;

// The panel over the board that asks for the name of a player who is among the four best.
struct NameControls {
    explicit NameControls(QWidget* window);

    Frame picEnterName;
    ControlArray<Shape, 2> shpEnterName{
        "shpEnterName", {{{&picEnterName, {0, 0, 2655, 1215}}, {&picEnterName, {45, 45, 2565, 1125}}}}};
    Label Label3{&picEnterName, {"Label3", {120, 120, 2415, 255}, Tesselor::tr("Enter Your Name")}};
    TextBox txtName{&picEnterName, {"txtName", {165, 420, 2325, 330}, ""}};
    CommandButton cmdOk{&picEnterName, {"cmdOk", {870, 810, 915, 300}, Tesselor::tr("OK")}};

protected:
    void ConnectNameEntry(frmGame& form);
};
