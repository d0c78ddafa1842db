#pragma once

#include <QWidget>

#include "platform/controls/Control.h"

// The shape control: an outlined or filled rectangle that the mouse passes through.
class Shape : public Control<QWidget> {
public:
    Shape(QWidget* parent, const Placement& placement);

    // Colours of the outline and the inside; an invalid colour leaves that part out. `radius`: of the
    // corners, in logical pixels.
    void Look(const QColor& outline, const QColor& inside, int radius = 0);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor outline_, inside_;
    int radius_ = 0;
};
