// How the controls look: fonts, colours, pictures and tooltips, as tables by control.

#include "screen/Links.h"
#include "screen/Look.h"
#include "screen/frmGame.h"

namespace {

void Dress(Label& label, Look::Text text, Colour colour, Qt::Alignment alignment = Qt::AlignCenter) {
    label.setFont(Look::Font(text));
    label.ForeColor(colour);
    label.Alignment(alignment);
}

constexpr int kMostLetters = 64;     // of a name
constexpr qreal kCloseSetting = 95;  // percent: the highest score there can be fits its column

template <class Control>
void Clickable(Control& control) {
    control.setCursor(Qt::PointingHandCursor);
    control.ShowsPress(true);
}

void Link(Label& label, const QString& text) {
    Dress(label, Look::Text::Small, Look::kLink);
    label.Caption(text);
    label.IsLink(true);
    Clickable(label);
}

}  // namespace

void frmGame::DressControls() {
    DressWindow();
    DressBoard();
    DressSkinScreen();
    DressHelpScreen();
    DressScoreScreen();
    DressNameEntry();
}

void frmGame::DressWindow() {
    using Look::Text;
    Background.Picture(WindowArt(QStringLiteral("background")));
    Background.setAttribute(Qt::WA_TransparentForMouseEvents);
    Image1.Picture(WindowArt(QStringLiteral("exit")));
    Image1.HoverPicture(WindowArt(QStringLiteral("exit-hover")));
    Image1.setToolTip(QStringLiteral("Exit "));
    imgMinimaize.Picture(WindowArt(QStringLiteral("minimise")));
    imgMinimaize.HoverPicture(WindowArt(QStringLiteral("minimise-hover")));
    for (Image* image : {&Image1, &imgMinimaize}) image->ShowsPress(true);
    imgWebLink.Picture(WindowArt(QStringLiteral("weblink")));
    imgWebLink.HoverPicture(WindowArt(QStringLiteral("weblink-hover")));
    Clickable(imgWebLink);
    Image2.Picture(WindowArt(QStringLiteral("menubar")));
    imgButton[3].setToolTip(QStringLiteral("High Score "));
    for (Image& button : imgButton) {
        Clickable(button);
        button.HoverPicture(WindowArt(QStringLiteral("key-hover")));
        button.PressedPicture(WindowArt(QStringLiteral("key-pressed")));
    }
    imgButton[4].HoverPicture(WindowArt(QStringLiteral("more-hover")));
    imgButton[4].PressedPicture(WindowArt(QStringLiteral("more-pressed")));
    Dress(Label16, Text::Small, Look::kLevel);
    Link(Label17, Links::kProductText);
    constexpr const char* kCaptions[] = {"play", "menu", "help", "score", "more"};
    for (std::size_t i = 0; i < lblCaption.size(); ++i) {
        lblCaption[i].Caption(QLatin1String(kCaptions[i]));
        Dress(lblCaption[i], Text::Normal, kWhite);
        shpArea[i].Look(QColor(0xC9, 0xA2, 0x4B), QColor(0x1B, 0x2A, 0x4E), 6);
    }
}

void frmGame::DressBoard() {
    using Look::Text;
    Dress(lblScore, Text::Number, Look::kNumber, Qt::AlignRight | Qt::AlignVCenter);
    Dress(lblCardsLeft, Text::Number, Look::kNumber);
    Picture4.BackColor(Look::kTray);
    // The sheets leave a strip of the tray free at two sides: it goes with the floor around it.
    Picture4.DrawFilledBox({0, 0}, {Picture4.width(), Picture4.height()}, Look::kFloor);
    picPreview.BackColor(Look::kTray);
    Dress(lblNextCard, Text::Small, kWhite);
    fraScreen[0].BackColor(Look::kTray);
    const Picture panel = WindowArt(QStringLiteral("panel"));
    for (Frame* screen : {&fraScreen[1], &fraScreen[2], &fraScreen[3]}) screen->Background(panel);
    shpTime.Look(QColor(0xC9, 0xA2, 0x4B), QColor());
    shpRect.Look(QColor(0x40, 0x40, 0x40), QColor());
}

void frmGame::DressSkinScreen() {
    using Look::Text;
    constexpr const char* kLevelNames[] = {"practice", "junior", "senior", "expert", "master"};
    for (std::size_t i = 0; i < lblClass.size(); ++i) {
        lblClass[i].Caption(QLatin1String(kLevelNames[i]));
        Dress(lblClass[i], Text::Heading, Look::kLevel, Qt::AlignLeft | Qt::AlignVCenter);
        Clickable(lblClass[i]);
    }
    shpLevel.Look(QColor(0xC9, 0xA2, 0x4B), QColor(0xFD, 0xF9, 0xEE), 4);
    Shape1.Look(QColor(0x8A, 0x66, 0x1E), QColor(0xC9, 0xA2, 0x4B), 2);
    for (Frame* well : {&Picture3, &Picture1}) well->BackColor(Look::kWell);
    for (PictureBox& slot : picSkin) {
        slot.BackColor(Look::kEmptySlot);
        Clickable(slot);
    }
    picCurrSkin.BackColor(Look::kEmptySlot);
    for (Label* heading : {&Label6, &Label7}) Dress(*heading, Text::Heading, Look::kLevel);
    Dress(lblSkinName, Text::Small, Look::kLevel);
    Dress(Label13, Text::Small, Look::kLevel);
    Link(Label14, Links::kHomeText);
}

void frmGame::DressHelpScreen() {
    using Look::Text;
    Dress(lblHelpText1, Text::Small, Look::kLevel, Qt::AlignLeft | Qt::AlignTop);
    lblHelpText1.WordWrap(true);
    imgMouse[0].Picture(WindowArt(QStringLiteral("mouse-move")));
    imgMouse[1].Picture(WindowArt(QStringLiteral("mouse-left")));
    imgMouse[2].Picture(WindowArt(QStringLiteral("mouse-right")));
    for (Label* label : {&lblHelpText2, &lblHelpText3, &lblHelpText4, &lblActiveCard, &lblErasor})
        Dress(*label, Text::Small, Look::kLevel);
    for (std::size_t i = 0; i < lblKey.size(); ++i) {
        shpKey[i].Look(QColor(0xB8, 0x9A, 0x5A), QColor(0xFF, 0xFD, 0xF6), 4);
        Dress(lblKey[i], Text::Small, Look::kLevel);
    }
    Picture2.Picture(WindowArt(QStringLiteral("activecard")));
    imgErasor.Picture(WindowArt(QStringLiteral("eraser")));
}

void frmGame::DressScoreScreen() {
    using Look::Text;
    const Qt::Alignment left = Qt::AlignLeft | Qt::AlignVCenter, right = Qt::AlignRight | Qt::AlignVCenter;
    Dress(lblCName, Text::Heading, Look::kLevel, left);
    Dress(lblCDate, Text::Heading, Look::kLevel, left);
    Dress(lblCHighScore, Text::Heading, Look::kLevel, right);
    QFont close = Look::Font(Text::Normal);
    close.setLetterSpacing(QFont::PercentageSpacing, kCloseSetting);
    for (std::size_t row = 0; row < lblName.size(); ++row) {
        Dress(lblName[row], Text::Normal, Look::kLevel, left);
        Dress(lblDate[row], Text::Normal, Look::kLevel, left);
        Dress(lblHighScore[row], Text::Normal, Look::kLevel, right);
        lblHighScore[row].setFont(close);
    }
    for (Shape* rule : {&Line2, &Line4, &Line5, &Line6, &Line7})
        rule->Look(QColor(), QColor(0xB8, 0x9A, 0x5A));
    Dress(Label15, Text::Small, Look::kLevel);
    Link(Label4, Links::kHomeText);
}

// Light grey in a brass frame between dark edges.
void frmGame::DressNameEntry() {
    picEnterName.BackColor(Look::kPanel);
    picEnterName.Visible(false);  // so that the keyboard cannot reach it either
    shpEnterName[0].Look(QColor(0x4A, 0x36, 0x10), QColor(0xC9, 0xA2, 0x4B));
    shpEnterName[1].Look(QColor(0x8A, 0x66, 0x1E), ToQColor(Look::kPanel));
    Dress(Label3, Look::Text::Heading, Look::kLevel);
    txtName.setMaxLength(kMostLetters);
}
