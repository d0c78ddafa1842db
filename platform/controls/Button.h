#pragma once

#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>

#include "platform/controls/Control.h"

// The command-button and text-box controls: the toolkit's own, placed in twips.
class CommandButton : public Control<QPushButton> {
public:
    CommandButton(QWidget* parent, const Placement& placement) : Control<QPushButton>(parent, placement) {
        setText(placement.caption);
        setAutoDefault(true);          // pressed by Enter as by the space bar
        setFocusPolicy(Qt::TabFocus);  // a click with the mouse moves no keyboard
        access.role = QAccessible::PushButton;
    }

protected:
    // The toolkit's button hands the keyboard on at an arrow; in this window that goes by direction.
    void keyPressEvent(QKeyEvent* event) override {
        const bool arrow = event->key() >= Qt::Key_Left && event->key() <= Qt::Key_Down;
        arrow ? event->ignore() : QPushButton::keyPressEvent(event);
    }
    // The toolkit's button, hidden while a mouse button is held on it, would still be clicked.
    bool hitButton(const QPoint& pos) const override { return isVisible() && QPushButton::hitButton(pos); }
};

class TextBox : public Control<QLineEdit> {
public:
    TextBox(QWidget* parent, const Placement& placement) : Control<QLineEdit>(parent, placement) {
        access.role = QAccessible::EditableText;
    }

    [[nodiscard]] QString Text() const { return text(); }

protected:
    // The toolkit's field passes on what it has no use for, such as Escape and Up: typing is no playing.
    void keyPressEvent(QKeyEvent* event) override {
        QLineEdit::keyPressEvent(event);
        event->accept();
    }
};
