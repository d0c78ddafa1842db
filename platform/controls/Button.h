#pragma once

#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>

#include "platform/controls/Control.h"
#include "platform/fonts/Fonts.h"

// The command-button and text-box controls: Qt's own, placed in twips.
class CommandButton : public Control<QPushButton> {
public:
    CommandButton(QWidget* parent, const Placement& placement) : Control<QPushButton>(parent, placement) {
        setText(placement.caption);
        setAutoDefault(true);          // Enter presses it, like the space bar
        setFocusPolicy(Qt::TabFocus);  // a mouse click does not move the focus
        access.role = QAccessible::PushButton;
    }

protected:
    // QPushButton moves the focus along the tab order on arrow keys; here arrows move it by direction.
    void keyPressEvent(QKeyEvent* event) override {
        const bool arrow = event->key() >= Qt::Key_Left && event->key() <= Qt::Key_Down;
        arrow ? event->ignore() : QPushButton::keyPressEvent(event);
    }
    // Without this, a button hidden while it is pressed would still emit a click.
    bool hitButton(const QPoint& pos) const override { return isVisible() && QPushButton::hitButton(pos); }
};

class TextBox : public Control<QLineEdit> {
public:
    TextBox(QWidget* parent, const Placement& placement) : Control<QLineEdit>(parent, placement) {
        access.role = QAccessible::EditableText;
        connect(this, &QLineEdit::textChanged, this, &Fonts::ListAllFor);
    }

    [[nodiscard]] QString Text() const { return text(); }
    // Limits the text, however it is entered, to its first `letters` user-perceived characters.
    void MostLetters(int letters);

protected:
    void inputMethodEvent(QInputMethodEvent* event) override {
        Fonts::ListAllFor(event->preeditString());
        QLineEdit::inputMethodEvent(event);
    }
    // QLineEdit ignores keys it does not use, such as Escape and Up; they must not reach the game.
    void keyPressEvent(QKeyEvent* event) override {
        QLineEdit::keyPressEvent(event);
        event->accept();
    }
};
