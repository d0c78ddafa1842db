#pragma once

#include "platform/Control.h"

// A control that can show that it is pressed: while the left button, pressed on it, is held over it.
template <class Widget>
class Pressable : public MouseControl<Widget> {
public:
    using MouseControl<Widget>::MouseControl;

    // Whether a press is shown; a control that answers no click keeps still.
    void ShowsPress(bool shows) { showsPress_ = shows; }

protected:
    [[nodiscard]] bool IsPressed() const { return pressed_ && over_; }

    void mousePressEvent(QMouseEvent* event) override {
        Press(showsPress_ && event->button() == Qt::LeftButton, true);
        MouseControl<Widget>::mousePressEvent(event);
    }
    void mouseDoubleClickEvent(QMouseEvent* event) override {
        Press(showsPress_ && event->button() == Qt::LeftButton, true);
        MouseControl<Widget>::mouseDoubleClickEvent(event);
    }
    void mouseMoveEvent(QMouseEvent* event) override {
        Press(pressed_, this->rect().contains(event->pos()));
        MouseControl<Widget>::mouseMoveEvent(event);
    }
    // Up before the handlers run: a click may show another screen, or last as long as a dialog.
    void mouseReleaseEvent(QMouseEvent* event) override {
        Press(pressed_ && event->button() != Qt::LeftButton, over_);
        MouseControl<Widget>::mouseReleaseEvent(event);
    }
    void hideEvent(QHideEvent* event) override {
        Press(false, over_);
        MouseControl<Widget>::hideEvent(event);
    }

private:
    void Press(bool pressed, bool over) {
        const bool before = IsPressed();
        pressed_ = pressed;
        over_ = over;
        if (IsPressed() != before) this->update();
    }

    bool showsPress_ = false, pressed_ = false, over_ = false;
};
