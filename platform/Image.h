#pragma once

#include <QWidget>

#include "platform/Control.h"
#include "platform/Picture.h"

// The image control: shows a picture in its natural size, or nothing at all and is then a hot spot.
class Image : public MouseControl<QWidget> {
public:
    Image(QWidget* parent, const Placement& placement) : MouseControl<QWidget>(parent, placement) {}

    void Picture(const ::Picture& picture);
    // The picture shown while the mouse is over the image.
    void HoverPicture(const ::Picture& picture) { hover_ = picture; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    ::Picture picture_, hover_;
};
