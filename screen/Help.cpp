// The help screen's button "more", the web links and the information window.

#include "screen/Links.h"
#include "screen/frmGame.h"
#include "screen/frmInfo.h"

namespace {

constexpr Twips kInfoGap = 200;  // between the information window and the game window

// `place` moved so that it lies on `screen`, as far as it fits.
QPoint OnScreen(QRect place, const QRect& screen) {
    place.moveRight(qMin(place.right(), screen.right()));
    place.moveBottom(qMin(place.bottom(), screen.bottom()));
    return {qMax(place.left(), screen.left()), qMax(place.top(), screen.top())};
}

}  // namespace

void frmGame::cmdHelp_Click() {
    imgButton_Click(4);
}

void frmGame::ShowInfo() {
    if (!info_ || !info_->isVisible()) info_ = std::make_unique<frmInfo>(this, world_.folder);
    const QPoint left = frameGeometry().topLeft() - QPoint(info_->width() + ToPixels(kInfoGap), 0);
    info_->move(OnScreen({left, info_->size()}, screen()->availableGeometry()));
    info_->show();
    info_->raise();
    info_->activateWindow();
}

void frmGame::Label14_Click() {
    world_.openAddress(Links::kHomePage);
}
void frmGame::Label4_Click() {
    world_.openAddress(Links::kHomePage);
}
void frmGame::imgWebLink_Click() {
    world_.openAddress(Links::kHomePage);
}
void frmGame::Label17_Click() {
    world_.openAddress(Links::kProductPage);
}
