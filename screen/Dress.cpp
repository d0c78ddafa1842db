// How the controls look: fonts, colours, pictures and tooltips, as tables by control.

#include "screen/Links.h"
#include "screen/Look.h"
#include "screen/frmGame.h"

namespace {

void Dress(Label& label, Look::Text text, Colour colour, Qt::Alignment alignment = Qt::AlignCenter) {
    label.setFont(Look::Font(text));
    label.ForeColor(colour);
    label.setAlignment(alignment);
}

constexpr int kMostLetters = 64;  // of a name

void HandCursor(QWidget& control) {
    control.setCursor(Qt::PointingHandCursor);
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
    imgWebLink.Picture(WindowArt(QStringLiteral("weblink")));
    Image2.Picture(WindowArt(QStringLiteral("menubar")));
    imgButton[3].setToolTip(QStringLiteral("High Score "));
    for (Image& button : imgButton) HandCursor(button);
    for (QWidget* link : {static_cast<QWidget*>(&imgWebLink), static_cast<QWidget*>(&Label17),
                          static_cast<QWidget*>(&Label14), static_cast<QWidget*>(&Label4)})
        HandCursor(*link);
    Dress(Label16, Text::Small, Look::kLevel);
    Dress(Label17, Text::Small, Look::kLink);
    Label17.Caption(Links::kProductText);
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
        HandCursor(lblClass[i]);
    }
    Shape1.Look(QColor(0x8A, 0x66, 0x1E), QColor(0xC9, 0xA2, 0x4B), 2);
    for (Frame* well : {&Picture3, &Picture1}) well->BackColor(Look::kWell);
    for (PictureBox& slot : picSkin) {
        slot.BackColor(Look::kEmptySlot);
        HandCursor(slot);
    }
    picCurrSkin.BackColor(Look::kEmptySlot);
    for (Label* heading : {&Label6, &Label7}) Dress(*heading, Text::Heading, Look::kLevel);
    Dress(lblSkinName, Text::Normal, Look::kLevel);
    Dress(Label13, Text::Small, Look::kLevel);
    Dress(Label14, Text::Small, Look::kLink);
    Label14.Caption(Links::kHomeText);
}

void frmGame::DressHelpScreen() {
    using Look::Text;
    Dress(lblHelpText1, Text::Fine, Look::kLevel, Qt::AlignLeft | Qt::AlignTop);
    lblHelpText1.setWordWrap(true);
    imgMouse[0].Picture(WindowArt(QStringLiteral("mouse-move")));
    imgMouse[1].Picture(WindowArt(QStringLiteral("mouse-left")));
    imgMouse[2].Picture(WindowArt(QStringLiteral("mouse-right")));
    for (Label* label : {&lblHelpText2, &lblHelpText3, &lblHelpText4, &lblActiveCard, &lblErasor})
        Dress(*label, Text::Small, Look::kLevel);
    Picture2.Picture(WindowArt(QStringLiteral("activecard")));
    imgErasor.Picture(WindowArt(QStringLiteral("eraser")));
}

void frmGame::DressScoreScreen() {
    using Look::Text;
    const Qt::Alignment left = Qt::AlignLeft | Qt::AlignVCenter, right = Qt::AlignRight | Qt::AlignVCenter;
    Dress(lblCName, Text::Heading, Look::kLevel, left);
    Dress(lblCDate, Text::Heading, Look::kLevel, left);
    Dress(lblCHighScore, Text::Heading, Look::kLevel, right);
    for (std::size_t row = 0; row < lblName.size(); ++row) {
        Dress(lblName[row], Text::Normal, Look::kLevel, left);
        Dress(lblDate[row], Text::Normal, Look::kLevel, left);
        Dress(lblHighScore[row], Text::Normal, Look::kLevel, right);
    }
    for (Shape* rule : {&Line2, &Line4, &Line5, &Line6, &Line7})
        rule->Look(QColor(), QColor(0xB8, 0x9A, 0x5A));
    Dress(Label15, Text::Small, Look::kLevel);
    Dress(Label4, Text::Small, Look::kLink);
    Label4.Caption(Links::kHomeText);
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
