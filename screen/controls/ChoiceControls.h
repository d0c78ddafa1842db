#pragma once

#include <QWidget>

#include "platform/controls/Frame.h"
#include "platform/controls/LineLabel.h"
#include "platform/controls/PictureBox.h"
#include "platform/controls/Shape.h"
#include "platform/language/Tesselor.h"
#include "screen/ControlArray.h"

class frmGame;

// The screen for choosing a level and a skin.
struct ChoiceControls {
    explicit ChoiceControls(QWidget* itsScreen);

    QWidget* const choices;
    Label Label6{choices, {"Label6", {120, 195, 1500, 255}, Tesselor::tr(" select level")}};
    Label Label7{choices, {"Label7", {1740, 195, 1965, 255}, Tesselor::tr("select skin")}};
    Frame Picture3{choices, {"Picture3", {120, 540, 1500, 1995}, ""}};
    Frame Picture1{choices, {"Picture1", {1740, 540, 1965, 2655}, ""}};
    Shape shpLevel{&Picture3, {"shpLevel", {315, 90, 1125, 300}, ""}};  // behind the chosen level
    ControlArray<Label, 5> lblClass{"lblClass", Grid<5>(&Picture3, {390, 105, 1050, 270}, 1, 0, 360)};
    Shape Shape1{&Picture3, {"Shape1", {180, 120, 105, 135}, ""}};
    ControlArray<PictureBox, 12> picSkin{"picSkin", Grid<12>(&Picture1, {60, 30, 585, 615}, 3, 630, 660)};
    PictureBox picCurrSkin{choices, {"picCurrSkin", {570, 2820, 525, 555}, ""}};
    LineLabel lblSkinName{choices, {"lblSkinName", {120, 3420, 1500, 240}, "sea"}};
    Label Label13{choices, {"Label13", {1740, 3270, 1965, 225}, Tesselor::tr("for more skins")}};
    Label Label14{choices, {"Label14", {1740, 3480, 1965, 225}, ""}};

protected:
    void ConnectChoices(frmGame& form);
};
