#pragma once

#include <QLineEdit>
#include <QPushButton>

#include "platform/Control.h"

// The command-button and text-box controls: the toolkit's own, placed in twips.
class CommandButton : public Control<QPushButton> {
public:
    CommandButton(QWidget* parent, const Placement& placement) : Control<QPushButton>(parent, placement) {
        setText(placement.caption);
        setAutoDefault(true);  // pressed by Enter as by the space bar
    }
};

class TextBox : public Control<QLineEdit> {
public:
    TextBox(QWidget* parent, const Placement& placement) : Control<QLineEdit>(parent, placement) {}

    [[nodiscard]] QString Text() const { return text(); }

protected:
    // The toolkit's field passes on what it has no use for, such as Escape and Up: typing is no playing.
    void keyPressEvent(QKeyEvent* event) override {
        QLineEdit::keyPressEvent(event);
        event->accept();
    }
};
