#pragma once

#include <QWidget>

#include "platform/controls/Access.h"

class QKeyEvent;

// Handles a key for the controls of `window`: Enter and the space bar press the focused one, an arrow moves
// the focus to the nearest pressable one in its direction. False when the key is not handled.
bool AnswerKey(QWidget& window, const QKeyEvent& event);

// The ring around the focused control, shown once the keyboard is in use: gold with a dark outline, visible
// on both stone and ivory. It stays on top of its window and follows the focus by itself.
class FocusRing final : public QWidget, public HasAccess {
public:
    explicit FocusRing(QWidget* window);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void Follow(const QWidget* focused);
};
