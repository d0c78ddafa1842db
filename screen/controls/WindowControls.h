#pragma once

#include <QWidget>

#include "platform/controls/Button.h"
#include "platform/controls/Image.h"
#include "platform/controls/LineLabel.h"
#include "platform/controls/PictureBox.h"
#include "platform/controls/Shape.h"
#include "platform/language/Tesselor.h"
#include "screen/TimeBar.h"

class frmGame;

// The controls around the four screens: score, cards left, next card, time bar, links and the corner images;
// and invisible ones. Anything right of 5985 or below 6165 is outside the window.
struct WindowControls {
    explicit WindowControls(QWidget* itsWindow);

    QWidget* const window;
    Image Background{window, {"Background", {0, 0, 5985, 6165}, ""}};
    Label lblSerieScore{window, {"lblSerieScore", {7140, 5580, 1800, 300}, "0"}};
    Label lblCardsInMatrix{window, {"lblCardsInMatrix", {8190, 5580, 1800, 300}, "CardsInMatrix"}};
    Label lblLevelBack{window, {"lblLevelBack", {7380, 120, 1500, 300}, ""}};
    Label lblLevelName{window, {"lblLevelName", {7380, 120, 1500, 300}, ""}};
    Label Label1{window, {"Label1", {7140, 600, 1800, 450}, "Tesselor"}};
    Label Label2{window, {"Label2", {7155, 615, 1800, 450}, "Tesselor"}};
    Label Label5{window, {"Label5", {7140, 1200, 1800, 240}, ""}};
    Label lblHelp{window, {"lblHelp", {7140, 1500, 1800, 240}, ""}};
    Label Label8{window, {"Label8", {7140, 1800, 240, 240}, "X"}};
    Label Label9{window, {"Label9", {7155, 1815, 240, 240}, "X"}};
    Label Label10{window, {"Label10", {7140, 2100, 900, 240}, "Score"}};
    Label Label11{window, {"Label11", {8040, 2100, 900, 240}, "cards"}};
    Label Label12{window, {"Label12", {8940, 2100, 900, 240}, "score"}};
    Image Image3{window, {"Image3", {7140, 2400, 480, 480}, ""}};
    Image Image4{window, {"Image4", {7740, 2400, 480, 480}, ""}};
    Label Label16{window, {"Label16", {2520, 195, 2670, 255}, Tesselor::tr("Come and compete online at ")}};
    Label Label17{window, {"Label17", {2520, 450, 2670, 255}, ""}};
    Label lblCardsCaption{window, {"lblCardsCaption", {2445, 5235, 1200, 195}, Tesselor::tr("CARDS LEFT")}};
    Label lblScoreCaption{window, {"lblScoreCaption", {4222, 5235, 1560, 195}, Tesselor::tr("SCORE")}};
    Label lblCardsLeft{window, {"lblCardsLeft", {2640, 5400, 750, 765}, "0"}};
    LineLabel lblScore{window, {"lblScore", {3540, 5580, 2190, 420}, "0"}};
    Image Image1{window, {"Image1", {5640, 30, 255, 285}, ""}};
    Image imgMinimaize{window, {"imgMinimaize", {5325, 30, 255, 285}, ""}};
    Image imgWebLink{window, {"imgWebLink", {120, 5070, 405, 885}, ""}};
    Image Image2{window, {"Image2", {5130, 1500, 765, 2910}, ""}};
    Shape shpTime{window, {"shpTime", {240, 885, 255, 4005}, ""}};
    Shape shpRect{window, {"shpRect", {750, 900, 3945, 3945}, ""}};
    TimeBar prbTime{window, {"prbTime", {270, 915, 195, 3945}, ""}, TimeBarDesign()};
    PictureBox Picture4{window, {"Picture4", {750, 900, 3945, 3945}, ""}};
    PictureBox picPreview{window, {"picPreview", {765, 4930, 960, 960}, ""}, 2};
    Label lblNextCard{&picPreview, {"lblNextCard", {0, 330, 900, 240}, Tesselor::tr("next card")}};
    PictureBox picTemp{window, {"picTemp", {7140, 3000, 960, 960}, ""}, 2};
    CommandButton cmdPrint{window, {"cmdPrint", {7140, 7200, 900, 345}, "Print"}};

protected:
    void ConnectWindow(frmGame& form);
};
