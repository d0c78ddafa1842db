#pragma once

#include <QObject>
#include <QPaintEvent>
#include <QWidget>

// Remembers which part of a widget is painted, in its own pixels.
class PaintWatch final : public QObject {
public:
    explicit PaintWatch(QWidget& widget) { widget.installEventFilter(this); }
    QRegion painted;

private:
    bool eventFilter(QObject* /*widget*/, QEvent* event) override {
        if (event->type() == QEvent::Paint) painted += static_cast<QPaintEvent*>(event)->region();
        return false;
    }
};
