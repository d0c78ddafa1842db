#pragma once

#include <QWidget>

#include "platform/controls/MouseControl.h"
#include "platform/pictures/Picture.h"

// The frame control: a panel with a colour or a picture that holds other controls.
class Frame : public MouseControl {
public:
    Frame(QWidget* parent, const Placement& placement) : MouseControl(parent, placement) {}

    void BackColor(Colour colour);
    void Background(const ::Picture& picture);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    ::Picture background_;
    QColor colour_ = Qt::transparent;
};
