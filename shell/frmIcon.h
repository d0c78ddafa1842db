#pragma once

#include <QDialog>

#include "platform/controls/Button.h"
#include "platform/controls/Label.h"

// The notice that the display does not use small fonts. Its button, Escape and the close button all close it.
class frmIcon final : public QDialog {
public:
    frmIcon();

    Label Label1, Label2, Label3, Label4;
    CommandButton Command1;
};
