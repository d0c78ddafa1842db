#include "screen/controls/HelpControls.h"

#include "platform/language/Tesselor.h"
#include "screen/Words.h"
#include "screen/controls/Dressing.h"
#include "screen/frmGame.h"

HelpControls::HelpControls(QWidget* itsScreen) : help(itsScreen) {
    using Look::Text;
    Dress(lblHelpText1, Text::Small, Look::kLevel, Qt::AlignLeft | Qt::AlignTop);
    lblHelpText1.WordWrap(true);
    imgMouse[0].Picture(WindowArt("mouse-move"));
    imgMouse[1].Picture(WindowArt("mouse-left"));
    imgMouse[2].Picture(WindowArt("mouse-right"));
    for (Label* label : {&lblHelpText2, &lblHelpText3, &lblHelpText4, &lblActiveCard, &lblErasor})
        Dress(*label, Text::Small);
    for (Label& key : lblKey) Dress(key, Text::Small);
    for (Shape& key : shpKey) key.Look(Look::kRule, QColor(0xFF, 0xFD, 0xF6), 4);
    Picture2.Picture(WindowArt("activecard"));
    imgErasor.Picture(WindowArt("eraser"));
}

void HelpControls::ConnectHelp(frmGame& form) {
    QObject::connect(&cmdHelp, &QPushButton::clicked, &form, &frmGame::cmdHelp_Click);
    QObject::connect(&cmdDemo, &QPushButton::clicked, &form, &frmGame::cmdDemo_Click);

    cmdHelp.setAccessibleDescription(Tesselor::tr("Opens the rules of the game"));
    cmdDemo.setAccessibleDescription(Tesselor::tr("Plays a game by itself"));
    for (Label& key : lblKey) key.access = {};  // announced with its action
    lblActiveCard.access = {};
    lblErasor.access.name = Fixed(Tesselor::tr("Eraser: lock it over a card to remove that card"));
    lblHelpText2.access.name = Fixed(Tesselor::tr("Move the card: arrow keys or mouse"));
    lblHelpText3.access.name = Fixed(Tesselor::tr("Lock the card: space bar or left mouse button"));
    lblHelpText4.access.name = Fixed(Tesselor::tr("Pause and resume: P or right mouse button"));
}
