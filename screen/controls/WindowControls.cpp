#include "screen/controls/WindowControls.h"

#include "platform/language/Tesselor.h"
#include "screen/Links.h"
#include "screen/Words.h"
#include "screen/controls/Dressing.h"
#include "screen/frmGame.h"

WindowControls::WindowControls(QWidget* itsWindow) : window(itsWindow) {
    using Look::Text;
    Background.Picture(FirstArt("background"));
    Background.setAttribute(Qt::WA_TransparentForMouseEvents);
    Image1.Picture(WindowArt("exit"));
    Image1.HoverPicture(WindowArt("exit-hover"));
    Image1.setToolTip(Tesselor::tr("Exit "));
    imgMinimaize.Picture(WindowArt("minimise"));
    imgMinimaize.HoverPicture(WindowArt("minimise-hover"));
    for (Image* image : {&Image1, &imgMinimaize}) image->ShowsPress(true);
    imgWebLink.Picture(WindowArt("weblink"));
    imgWebLink.HoverPicture(WindowArt("weblink-hover"));
    MakeClickable(imgWebLink);
    Image2.Picture(WindowArt("menubar"));
    Dress(Label16, Text::Small);
    DressAsLink(Label17, Links::kProductText);
    Dress(lblCardsCaption, Text::Caption, Look::kCaption);
    Dress(lblScoreCaption, Text::Caption, Look::kCaption, kRight);
    Dress(lblScore, Text::Number, Look::kNumber, kRight);
    Dress(lblCardsLeft, Text::Number, Look::kNumber);
    Picture4.BackColor(Look::kTray);
    // The screens leave a strip of the tray uncovered on two sides: paint it like the floor around it.
    Picture4.DrawFilledBox({0, 0}, {Picture4.width(), Picture4.height()}, Look::kFloor);
    picPreview.BackColor(Look::kTray);
    Dress(lblNextCard, Text::Small, kWhite);
    prbTime.setAttribute(Qt::WA_NoMousePropagation);  // a press on it does not move the window
    shpTime.Look(Look::kBrass, QColor());
    shpRect.Look(QColor(0x40, 0x40, 0x40), QColor());
}

void WindowControls::ConnectWindow(frmGame& form) {
    Image1.onClick = [&form] { form.Image1_Click(); };
    imgMinimaize.onClick = [&form] { form.imgMinimaize_Click(); };
    imgWebLink.onClick = [&form] { form.imgWebLink_Click(); };
    Label17.onClick = [&form] { form.Label17_Click(); };
    QObject::connect(&cmdPrint, &QPushButton::clicked, &form, &frmGame::cmdPrint_Click);

    Image1.access = {QAccessible::PushButton, Fixed(Tesselor::tr("exit")), Image1.onClick};
    Image1.setAccessibleDescription(Tesselor::tr("Ends the program"));
    imgMinimaize.access = {QAccessible::PushButton, Fixed(Tesselor::tr("minimise")), imgMinimaize.onClick};
    imgWebLink.access = {QAccessible::Link, [] { return Links::kHomeText; }, imgWebLink.onClick};
    Label17.access.press = Label17.onClick;
    picPreview.access = {QAccessible::Graphic, [&form] { return NextCardInWords(form); }};
    // Announced with what they belong to.
    for (Label* label : {&lblNextCard, &lblCardsCaption, &lblScoreCaption}) label->access = {};
    lblScore.access.name = [this] { return Tesselor::tr("Score %1").arg(lblScore.Caption()); };
    lblCardsLeft.access.name = [this] {
        return Tesselor::tr("%n card(s) left", nullptr, lblCardsLeft.Caption().toInt());
    };
    prbTime.access = {QAccessible::ProgressBar, Fixed(Tesselor::tr("Time used")), {}, {}, [this] {
                          return int(prbTime.Value());
                      }};
}
