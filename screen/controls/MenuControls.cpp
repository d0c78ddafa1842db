#include "screen/controls/MenuControls.h"

#include "platform/language/Tesselor.h"
#include "screen/controls/Dressing.h"
#include "screen/frmGame.h"

namespace {

// The areas and captions are outside the visible window, except those of "more".
std::array<Spot, 5> Beside(QWidget* window, const Spot& more) {
    std::array<Spot, 5> spots{};
    std::ranges::copy(Grid<4>(window, {7140, 6600, 690, 240}, 4, 900, 0), spots.begin());
    spots[4] = more;
    return spots;
}

}  // namespace

MenuControls::MenuControls(QWidget* window, QWidget* help)
    : shpArea("shpArea", Beside(window, {help, {3210, 150, 600, 330}})),
      lblCaption("lblCaption", Beside(window, {help, {3210, 180, 600, 270}})),
      imgButton("imgButton", {{{window, {5220, 3660, 555, 540}},
                               {window, {5220, 2970, 585, 570}},
                               {window, {5220, 1590, 585, 570}},
                               {window, {5220, 2310, 585, 555}},
                               {help, {3210, 150, 600, 330}}}}) {
    const QString tips[] = {Tesselor::tr("Start a new game"), Tesselor::tr("Choose a level and a skin"),
                            Tesselor::tr("How to play"), Tesselor::tr("High Score "),
                            Tesselor::tr("Read the rules")};
    for (int number = 0; number < imgButton.size(); ++number) {
        Image& button = imgButton[number];
        button.setToolTip(tips[number]);
        MakeClickable(button);
        button.HoverPicture(WindowArt("key-hover"));
        button.PressedPicture(WindowArt("key-pressed"));
    }
    imgButton[4].HoverPicture(WindowArt("more-hover"));
    imgButton[4].PressedPicture(WindowArt("more-pressed"));
    const QString captions[] = {Tesselor::tr("play"), Tesselor::tr("menu"), Tesselor::tr("help"),
                                Tesselor::tr("score", "button of the high-score table"),
                                Tesselor::tr("more")};
    for (int button = 0; button < lblCaption.size(); ++button) {
        lblCaption[button].Caption(captions[button]);
        Dress(lblCaption[button], Look::Text::Normal, kWhite);
        shpArea[button].Look(Look::kBrass, QColor(0x1B, 0x2A, 0x4E), 6);
    }
}

void MenuControls::ConnectMenu(frmGame& form) {
    OnEach(imgButton, &Image::onMouseDown, form, &frmGame::imgButton_MouseDown);
    OnEach(imgButton, &Image::onMouseUp, form, &frmGame::imgButton_MouseUp);
    const QString actions[] = {Tesselor::tr("Starts a new game"), Tesselor::tr("Choose a level and a skin"),
                               Tesselor::tr("How the game is played"), Tesselor::tr("The four best games"),
                               Tesselor::tr("Opens the rules of the game")};
    for (std::int16_t button = 0; button < imgButton.size(); ++button) {
        Image& image = imgButton[button];
        image.onClick = [&form, button] { form.imgButton_Click(button); };
        image.access = {QAccessible::PushButton, [this, button] { return lblCaption[button].Caption(); },
                        image.onClick};
        image.setAccessibleDescription(actions[button]);
    }
    lblCaption[4].access = {};
}
