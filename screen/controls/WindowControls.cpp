#include "screen/controls/WindowControls.h"

#include "screen/Links.h"
#include "screen/Words.h"
#include "screen/controls/Dressing.h"
#include "screen/frmGame.h"

WindowControls::WindowControls(QWidget* itsWindow) : window(itsWindow) {
    using Look::Text;
    Background.Picture(WindowArt("background"));
    Background.setAttribute(Qt::WA_TransparentForMouseEvents);
    Image1.Picture(WindowArt("exit"));
    Image1.HoverPicture(WindowArt("exit-hover"));
    Image1.setToolTip("Exit ");
    imgMinimaize.Picture(WindowArt("minimise"));
    imgMinimaize.HoverPicture(WindowArt("minimise-hover"));
    for (Image* image : {&Image1, &imgMinimaize}) image->ShowsPress(true);
    imgWebLink.Picture(WindowArt("weblink"));
    imgWebLink.HoverPicture(WindowArt("weblink-hover"));
    MakeClickable(imgWebLink);
    Image2.Picture(WindowArt("menubar"));
    Dress(Label16, Text::Small);
    DressAsLink(Label17, Links::kProductText);
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

    Image1.access = {QAccessible::PushButton, Fixed("exit"), Image1.onClick};
    Image1.setAccessibleDescription("Ends the program");
    imgMinimaize.access = {QAccessible::PushButton, Fixed("minimise"), imgMinimaize.onClick};
    imgWebLink.access = {QAccessible::Link, [] { return Links::kHomeText; }, imgWebLink.onClick};
    Label17.access.press = Label17.onClick;
    picPreview.access = {QAccessible::Graphic, [&form] { return NextCardInWords(form); }};
    lblNextCard.access = {};
    lblScore.access.name = [this] { return "Score " + lblScore.Caption(); };
    lblCardsLeft.access.name = [this] {
        const QString cards = lblCardsLeft.Caption();
        return cards + (cards == "1" ? " card left" : " cards left");
    };
    prbTime.access = {
        QAccessible::ProgressBar, Fixed("Time used"), {}, {}, [this] { return int(prbTime.Value()); }};
}
