// Keyboard control: the board's own keys, and the focus order of everything else.

#include <QKeyEvent>
#include <QShortcut>

#include "screen/frmGame.h"

namespace {

// The virtual-key code of a key; 0 for keys the game does not use.
std::int16_t VirtualKey(int key) {
    switch (key) {
        case Qt::Key_Escape:
            return 27;
        case Qt::Key_Space:
            return kKeyLock;
        case Qt::Key_Left:
            return kKeyLeft;
        case Qt::Key_Up:
            return kKeyUp;
        case Qt::Key_Right:
            return kKeyRight;
        case Qt::Key_Down:
            return kKeyDown;
        default:
            return 0;
    }
}

}  // namespace

// During a game its keys go to the board, whatever has the focus; Tab and Enter work as usual.
bool frmGame::BoardTakesKeys() const {
    return fraScreen[0].Visible() && (play != Play::Off || demoRuns_);
}

void frmGame::keyPressEvent(QKeyEvent* event) {
    const std::int16_t key = VirtualKey(event->key());
    if (key == 0 || !BoardTakesKeys()) {
        if (!AnswerKey(*this, *event)) QWidget::keyPressEvent(event);
        return;
    }
    setFocus();  // what the key does to the board is announced only while the board has the focus
    // A key would put a demonstration's script out of step with its board; Escape always works.
    if (!demoRuns_ || event->key() == Qt::Key_Escape) Form_KeyDown(key, 0);
}

// A shortcut, so that P also works on Cyrillic and Greek keyboards.
void frmGame::ConnectPauseKey() {
    auto* pause = new QShortcut(this);
    pause->setKeys({Qt::Key_P, Qt::SHIFT | Qt::Key_P});
    pause->setAutoRepeat(false);
    connect(pause, &QShortcut::activated, this, [this] {
        if (BoardTakesKeys() && !demoRuns_) Form_KeyDown(kKeyPause, 0);
    });
}

// From the menu through the current screen to the links and the corner. Hidden controls are skipped.
void frmGame::OrderControls() {
    std::vector<QWidget*> order{this, &imgButton[0], &imgButton[1], &imgButton[3], &imgButton[2]};
    for (Label& level : lblClass) order.push_back(&level);
    for (PictureBox& slot : picSkin) order.push_back(&slot);
    for (QWidget* control :
         std::initializer_list<QWidget*>{&Label14, &imgButton[4], &cmdHelp, &cmdDemo, &Label4, &txtName,
                                         &cmdOk, &Label17, &imgWebLink, &imgMinimaize, &Image1})
        order.push_back(control);
    for (std::size_t i = 1; i < order.size(); ++i) {
        if (order[i] != &txtName) order[i]->setFocusPolicy(Qt::TabFocus);
        setTabOrder(order[i - 1], order[i]);
    }
    OrderSkinSlots();
    cmdPrint.setFocusPolicy(Qt::NoFocus);  // it is out of sight
    imgButton[0].setFocus();
}

// Only slots with a skin take the focus.
void frmGame::OrderSkinSlots() {
    for (std::int16_t slot = 0; slot < picSkin.size(); ++slot)
        picSkin[slot].setFocusPolicy(slot < SkinCount ? Qt::TabFocus : Qt::NoFocus);
}
