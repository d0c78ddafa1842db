#include "screen/controls/ScoreControls.h"

#include "platform/language/Tesselor.h"
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

QString ScoreControls::RowInWords(int row) const {
    const QString name = lblName[row].Caption(), score = lblHighScore[row].Caption();
    if (score == "0") return Tesselor::tr("Place %1: empty").arg(row + 1);
    return Tesselor::tr("Place %1: %2, score %3, %4", "place, player, score, date")
        .arg(row + 1)
        .arg(name.isEmpty() ? Tesselor::tr("no name") : name, score, lblDate[row].Caption());
}

void ScoreControls::ConnectScores(frmGame& form) {
    Label4.onClick = [&form] { form.Label4_Click(); };

    Label4.access.press = Label4.onClick;
    for (int row = 0; row < lblName.size(); ++row) {
        lblName[row].access.name = [this, row] { return RowInWords(row); };
        lblDate[row].access = lblHighScore[row].access = {};
    }
    for (Label* heading : {&lblCName, &lblCDate, &lblCHighScore}) heading->access = {};
}
