#pragma once

#include <QWidget>

#include "platform/controls/Button.h"
#include "platform/controls/Image.h"
#include "platform/controls/Label.h"
#include "platform/controls/Shape.h"
#include "platform/language/Tesselor.h"
#include "screen/ControlArray.h"

class frmGame;

// The help screen: how to play, and the buttons for the rules and the demonstration.
struct HelpControls {
    explicit HelpControls(QWidget* itsScreen);

    QWidget* const help;
    Label lblHelpText1{help, {"lblHelpText1", {150, 180, 2580, 900}, "Text"}};
    ControlArray<Image, 3> imgMouse{
        "imgMouse",
        {{{help, {480, 870, 690, 690}}, {help, {1680, 960, 690, 690}}, {help, {2850, 960, 690, 690}}}}};
    Label lblHelpText2{help, {"lblHelpText2", {330, 1590, 990, 225}, Tesselor::tr("move card")}};
    Label lblHelpText3{help, {"lblHelpText3", {1530, 1590, 990, 225}, Tesselor::tr("lock card")}};
    Label lblHelpText4{help, {"lblHelpText4", {2580, 1590, 1230, 225}, Tesselor::tr("pause/resume")}};
    ControlArray<Shape, 3> shpKey{
        "shpKey",
        {{{help, {345, 1875, 960, 270}}, {help, {1695, 1875, 660, 270}}, {help, {3015, 1875, 360, 270}}}}};
    ControlArray<Label, 3> lblKey{"lblKey",
                                  {{{help, {345, 1875, 960, 270}, Tesselor::tr("arrow keys")},
                                    {help, {1695, 1875, 660, 270}, Tesselor::tr("space")},
                                    {help, {3015, 1875, 360, 270}, "P"}}}};
    Image Picture2{help, {"Picture2", {835, 2400, 390, 435}, ""}};
    Image imgErasor{help, {"imgErasor", {2520, 2340, 855, 840}, ""}};
    Label lblActiveCard{help, {"lblActiveCard", {660, 2940, 1200, 225}, Tesselor::tr("active card      ")}};
    Label lblErasor{help, {"lblErasor", {2550, 2970, 825, 225}, Tesselor::tr("erasor")}};
    CommandButton cmdHelp{help, {"cmdHelp", {840, 3330, 765, 345}, Tesselor::tr("more")}};
    CommandButton cmdDemo{help, {"cmdDemo", {2280, 3330, 765, 345}, Tesselor::tr("demo")}};

protected:
    void ConnectHelp(frmGame& form);
};
