#include "screen/controls/NameControls.h"

#include "screen/controls/Dressing.h"
#include "screen/frmGame.h"

namespace {

constexpr int kMostLetters = 64;  // of a name

}  // namespace

// Light grey in a brass frame between dark edges.
NameControls::NameControls(QWidget* window)
    : picEnterName(window, {"picEnterName", {7140, 4200, 2655, 1215}, ""}) {
    picEnterName.BackColor(Look::kPanel);
    picEnterName.Visible(false);  // so that the keyboard cannot reach it
    shpEnterName[0].Look(QColor(0x4A, 0x36, 0x10), Look::kBrass);
    shpEnterName[1].Look(Look::kDarkBrass, ToQColor(Look::kPanel));
    Dress(Label3, Look::Text::Heading);
    txtName.MostLetters(kMostLetters);
}

void NameControls::ConnectNameEntry(frmGame& form) {
    QObject::connect(&cmdOk, &QPushButton::clicked, &form, &frmGame::cmdOk_Click);
    QObject::connect(&txtName, &QLineEdit::returnPressed, &form, &frmGame::cmdOk_Click);
    txtName.setAccessibleName(Label3.Caption());
    picEnterName.access = {QAccessible::Dialog, [this] { return Label3.Caption(); }};
}
