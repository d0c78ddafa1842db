#pragma once

#include <QLineEdit>
#include <QPushButton>

#include "platform/Control.h"

// The command-button and text-box controls: the toolkit's own, placed in twips.
class CommandButton : public Control<QPushButton> {
public:
    CommandButton(QWidget* parent, const Placement& placement) : Control<QPushButton>(parent, placement) {
        setText(placement.caption);
    }
};

class TextBox : public Control<QLineEdit> {
public:
    TextBox(QWidget* parent, const Placement& placement) : Control<QLineEdit>(parent, placement) {}

    [[nodiscard]] QString Text() const { return text(); }
};
