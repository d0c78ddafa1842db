#include "screen/controls/ScoreControls.h"

#include "screen/Links.h"
#include "screen/controls/Dressing.h"
#include "screen/frmGame.h"

namespace {

constexpr qreal kCloseSetting = 95;  // percent; fits the highest possible score into its column

}  // namespace

ScoreControls::ScoreControls(QWidget* itsScreen) : scores(itsScreen) {
    using Look::Text;
    Dress(lblCName, Text::Heading, Look::kLevel, kLeft);
    Dress(lblCDate, Text::Heading, Look::kLevel, kLeft);
    Dress(lblCHighScore, Text::Heading, Look::kLevel, kRight);
    QFont close = Look::Font(Text::Normal);
    close.setLetterSpacing(QFont::PercentageSpacing, kCloseSetting);
    for (int row = 0; row < lblName.size(); ++row) {
        Dress(lblName[row], Text::Normal, Look::kLevel, kLeft);
        Dress(lblDate[row], Text::Normal, Look::kLevel, kLeft);
        Dress(lblHighScore[row], Text::Normal, Look::kLevel, kRight);
        lblHighScore[row].setFont(close);
    }
    for (Shape* rule : {&Line2, &Line4, &Line5, &Line6, &Line7}) rule->Look(QColor(), Look::kRule);
    Dress(Label15, Text::Small);
    DressAsLink(Label4, Links::kHomeText);
}

void ScoreControls::ConnectScores(frmGame& form) {
    Label4.onClick = [&form] { form.Label4_Click(); };

    Label4.access.press = Label4.onClick;
    for (int row = 0; row < lblName.size(); ++row) {
        lblName[row].access.name = [this, row] {
            const QString name = lblName[row].Caption();
            return QStringLiteral("Place %1: %2").arg(row + 1).arg(name.isEmpty() ? "no name" : name);
        };
        lblDate[row].access.name = [this, row] { return "Date " + lblDate[row].Caption(); };
        lblHighScore[row].access.name = [this, row] { return "Score " + lblHighScore[row].Caption(); };
    }
}
