#include "platform/Pressable.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QEnterEvent>

#include "platform/Button.h"
#include "platform/Image.h"
#include "platform/Label.h"

namespace {

constexpr QPoint kInside(20, 10), kOutside(-5, 10);

void Send(QWidget& control, QEvent::Type type, QPoint at, Qt::MouseButton button = Qt::LeftButton) {
    const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : button;
    QMouseEvent event(type, at, control.mapToGlobal(at), button, held, Qt::NoModifier);
    QCoreApplication::sendEvent(&control, &event);
}

QImage Seen(QWidget& control) {
    return control.grab().toImage();
}

// A picture of one dark stripe, at its top.
class Stripe final : public PictureSource {
public:
    QImage Render(int /*cell*/, qreal scale) const override {
        QImage image((QSizeF(40, 20) * scale).toSize(), QImage::Format_RGB32);
        image.fill(Qt::white);
        for (int x = 0; x < image.width(); ++x) image.setPixel(x, 0, qRgb(0, 0, 0));
        return image;
    }
};

TEST(Pressable, IsSeenPressedWhileTheLeftButtonIsHeldOverIt) {
    Label label(nullptr, {"label", {0, 0, 600, 300}, "text"});
    label.ShowsPress(true);
    label.show();
    const QImage resting = Seen(label);
    Send(label, QEvent::MouseButtonPress, kInside);
    const QImage pressed = Seen(label);
    EXPECT_EQ(pressed.copy(0, 1, 40, 19), resting.copy(0, 0, 40, 19));
    Send(label, QEvent::MouseMove, kOutside);
    EXPECT_EQ(Seen(label), resting);
    Send(label, QEvent::MouseMove, kInside);
    EXPECT_EQ(Seen(label), pressed);
    bool upInClick = false;
    label.onClick = [&] { upInClick = Seen(label) == resting; };
    Send(label, QEvent::MouseButtonRelease, kInside);
    EXPECT_TRUE(upInClick);
    Send(label, QEvent::MouseButtonPress, kInside, Qt::RightButton);
    EXPECT_EQ(Seen(label), resting);
}

TEST(Pressable, AHiddenControlIsNotClickedAndComesBackUnpressed) {
    Image image(nullptr, {"image", {0, 0, 600, 300}, {}});
    int clicks = 0;
    image.onClick = [&] { ++clicks; };
    image.Picture({std::make_shared<Stripe>(), 0});
    image.show();
    const QImage resting = Seen(image);
    Send(image, QEvent::MouseButtonPress, kInside);
    EXPECT_EQ(Seen(image), resting);  // it answers no click
    image.ShowsPress(true);
    Send(image, QEvent::MouseButtonPress, kInside);
    EXPECT_EQ(Seen(image).pixel(5, 1), 0xFF000000);
    image.hide();
    Send(image, QEvent::MouseButtonRelease, kInside);  // it still has the mouse
    EXPECT_EQ(clicks, 0);
    image.show();
    EXPECT_EQ(Seen(image), resting);
    Send(image, QEvent::MouseButtonRelease, kInside);
    EXPECT_EQ(clicks, 1);
}

TEST(Pressable, AHiddenCommandButtonIsNotClicked) {
    CommandButton button(nullptr, {"button", {0, 0, 600, 300}, {}});
    int clicks = 0;
    QObject::connect(&button, &QPushButton::clicked, [&] { ++clicks; });
    button.show();
    for (const bool hidden : {true, false}) {
        Send(button, QEvent::MouseButtonPress, kInside);
        button.Visible(!hidden);
        Send(button, QEvent::MouseButtonRelease, kInside);
        button.show();
        EXPECT_EQ(clicks, hidden ? 0 : 1);
    }
}

TEST(Pressable, ALinkIsUnderlinedWhileTheMouseIsOverIt) {
    Label label(nullptr, {"label", {0, 0, 600, 300}, "text"});
    QEnterEvent enter(kInside, kInside, kInside);
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&label, &enter);
    EXPECT_FALSE(label.font().underline());
    label.IsLink(true);
    QCoreApplication::sendEvent(&label, &enter);
    EXPECT_TRUE(label.font().underline());
    QCoreApplication::sendEvent(&label, &leave);
    EXPECT_FALSE(label.font().underline());
}

}  // namespace
