#pragma once

#include <QWidget>

#include "platform/controls/MouseControl.h"
#include "platform/pictures/Picture.h"

// The image control: a picture at its natural size, or, without one, an invisible hit area.
class Image : public MouseControl {
public:
    Image(QWidget* parent, const Placement& placement) : MouseControl(parent, placement) {}

    void Picture(const ::Picture& picture);
    // The picture shown while the mouse is over the image.
    void HoverPicture(const ::Picture& picture) { hover_ = picture; }
    // The picture shown while the image is pressed; without one the image moves down by a pixel.
    void PressedPicture(const ::Picture& picture) { pressed_ = picture; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    [[nodiscard]] const ::Picture& Shown() const;

    ::Picture picture_, hover_, pressed_;
};
