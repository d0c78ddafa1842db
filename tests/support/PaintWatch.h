#pragma once

#include <QObject>
#include <QPaintEvent>
#include <QWidget>

// Remembers which part of a window is painted, by itself or by a control in it, in its own pixels.
struct PaintWatch final : QObject {
    QWidget& window;
    QRegion painted;

    explicit PaintWatch(QWidget& itsWindow) : window(itsWindow) {
        window.installEventFilter(this);
        for (QWidget* control : window.findChildren<QWidget*>()) control->installEventFilter(this);
    }
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::Paint) return false;
        const QPoint corner = static_cast<QWidget*>(watched)->mapTo(&window, QPoint(0, 0));
        painted += static_cast<QPaintEvent*>(event)->region().translated(corner);
        return false;
    }
};
