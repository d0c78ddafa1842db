// The help screen's button "more", the web links and the information window.

#include "screen/Links.h"
#include "screen/frmGame.h"
#include "screen/frmInfo.h"

namespace {

constexpr Twips kInfoGap = 200;  // between the information window and the game window

}  // namespace

void frmGame::cmdHelp_Click() {
    imgButton_Click(4);
}

void frmGame::ShowInfo() {
    if (!info_ || !info_->isVisible()) info_ = std::make_unique<frmInfo>(this, world_.folder);
    const QPoint left = frameGeometry().topLeft() - QPoint(info_->width() + ToPixels(kInfoGap), 0);
    info_->move(WindowShape::OnScreen({left, info_->size()}, screen()->availableGeometry()));
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
