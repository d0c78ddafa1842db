#pragma once

#include <QWidget>

#include "platform/controls/Label.h"
#include "platform/controls/LineLabel.h"
#include "platform/controls/Shape.h"
#include "platform/language/Tesselor.h"
#include "screen/ControlArray.h"

class frmGame;

// The screen with the four best games.
struct ScoreControls {
    explicit ScoreControls(QWidget* itsScreen);

    QWidget* const scores;
    Label lblCName{scores, {"lblCName", {135, 225, 1290, 270}, Tesselor::tr("name")}};
    Label lblCDate{scores, {"lblCDate", {1485, 225, 1080, 270}, Tesselor::tr("date")}};
    Label lblCHighScore{scores, {"lblCHighScore", {2580, 225, 1200, 270}, Tesselor::tr("score")}};
    ControlArray<LineLabel, 4> lblName{"lblName", Grid<4>(scores, {135, 705, 1290, 270}, 1, 0, 555)};
    ControlArray<LineLabel, 4> lblDate{"lblDate", Grid<4>(scores, {1485, 705, 1080, 270}, 1, 0, 555)};
    ControlArray<LineLabel, 4> lblHighScore{"lblHighScore",
                                            Grid<4>(scores, {2580, 705, 1200, 270}, 1, 0, 555)};
    Shape Line2{scores, {"Line2", {135, 555, 3645, 15}, ""}};
    Shape Line4{scores, {"Line4", {135, 1110, 3645, 15}, ""}};
    Shape Line5{scores, {"Line5", {135, 1665, 3645, 15}, ""}};
    Shape Line6{scores, {"Line6", {135, 2220, 3645, 15}, ""}};
    Shape Line7{scores, {"Line7", {135, 2775, 3645, 15}, ""}};
    Label Label15{scores, {"Label15", {135, 3105, 3645, 240}, Tesselor::tr("submit your high score")}};
    Label Label4{scores, {"Label4", {135, 3345, 3645, 240}, ""}};

protected:
    void ConnectScores(frmGame& form);

private:
    // "Place 1: Ada, score 9,450, 3/8/2026" or "Place 1: empty". row: 0..3.
    [[nodiscard]] QString RowInWords(int row) const;
};
