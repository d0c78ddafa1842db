#pragma once

#include <QWidget>

#include "platform/controls/Access.h"

class QKeyEvent;

// Answers a key for the controls of `window`: Enter and the space bar press the one that has the keyboard,
// an arrow hands the keyboard to the nearest one in its direction that can be pressed. False when the key
// means nothing here.
bool AnswerKey(QWidget& window, const QKeyEvent& event);

// The mark around the control that has the keyboard, once the keyboard is in use: gold within dark, so that
// it is seen on stone and on ivory. It lies above everything in its window and follows by itself.
class FocusRing final : public QWidget, public HasAccess {
public:
    explicit FocusRing(QWidget* window);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void Follow(const QWidget* focused);
};
