// What controls paint, pixel by pixel, and the pictures they paint it from.

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QEnterEvent>
#include <QPalette>
#include <QTemporaryDir>
#include <map>
#include <new>

#include "platform/Frame.h"
#include "platform/Image.h"
#include "platform/Label.h"
#include "platform/PictureBox.h"
#include "platform/PictureClip.h"
#include "platform/PixelFile.h"
#include "platform/Shape.h"
#include "tests/support/PaintWatch.h"

namespace {

// One colour, 2 x 2 logical pixels; none while there is no memory.
struct Swatch final : PictureSource {
    explicit Swatch(Qt::GlobalColor itsColour) : colour(itsColour) {}
    QImage Render(int /*cell*/, qreal scale) const override {
        if (!memory) throw std::bad_alloc();
        QImage image((QSizeF(2, 2) * scale).toSize(), QImage::Format_RGB32);
        image.fill(colour);
        return image;
    }
    QColor colour;
    bool memory = true;
};

constexpr Colour kBlue = 0xFF0000;

Picture Red() {
    return {std::make_shared<Swatch>(Qt::red), 0};
}
Picture Blue() {
    return {std::make_shared<Swatch>(Qt::blue), 0};
}

// Row by row: a dot where nothing is painted, white, red and blue by their letter, others by 1, 2, 3 as they
// come.
std::string Letters(const QImage& image) {
    std::map<QRgb, char> letters{{0, '.'}, {0xFFFFFFFF, 'w'}, {0xFFFF0000, 'r'}, {0xFF0000FF, 'b'}};
    std::string seen;
    for (int y = 0; y < image.height(); ++y, seen += ' ')
        for (int x = 0; x < image.width(); ++x)
            seen += letters.try_emplace(image.pixel(x, y), char('1' + letters.size() - 4)).first->second;
    return seen;
}

QImage Seen(QWidget& window, qreal scale) {
    QImage image((QSizeF(window.size()) * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::transparent);
    window.render(&image, {}, {}, QWidget::DrawChildren);
    return image;
}

void Send(QWidget& control, QEvent&& event) {
    QCoreApplication::sendEvent(&control, &event);
}

void Press(QWidget& control) {
    Send(control, QMouseEvent(QEvent::MouseButtonPress, {1, 1}, {}, Qt::LeftButton, Qt::LeftButton, {}));
}

// Twelve controls of 4 x 3 pixels side by side. At one and a half, every other one begins between two device
// pixels.
struct Row : QWidget {
    Row() {
        resize(60, 4);
        frame.BackColor(kRed), frame.Background(Blue());
        shape.Look(Qt::red, Qt::blue), outline.Look(Qt::red, {}), inside.Look({}, Qt::blue);
        for (Image* image : {&hover, &sunk, &pressed}) image->Picture(Blue()), image->ShowsPress(true);
        hover.HoverPicture(Red()), hover.setAttribute(Qt::WA_UnderMouse);
        pressed.PressedPicture(Red());
        painted.Picture(Red()), painted.PaintPicture(Blue(), {1, 1});
        for (PictureBox* box : {&bordered, &down, &thin, &thick}) box->BackColor(kRed);
        down.ShowsPress(true);
        thin.DrawBox({0, 0}, {3, 2}, kWhite), thin.DrawFilledBox({1, 0}, {3, 2}, kBlue);
        thick.DrawWidth(2), thick.DrawBox({2, 2}, {7, 7}, kBlue), thick.DrawBox({-4, -4}, {0, 0}, kWhite);
        for (QWidget* control : std::initializer_list<QWidget*>{&sunk, &pressed, &down}) Press(*control);
    }
    static Placement At(int number) { return {"", {15 + 75 * number, 15, 60, 45}, ""}; }
    Frame frame{this, At(0)};
    Shape shape{this, At(1)}, outline{this, At(2)}, inside{this, At(3)};
    Image hover{this, At(4)}, sunk{this, At(5)}, pressed{this, At(6)};
    PictureBox painted{this, At(7)}, bordered{this, At(8), 1}, down{this, At(9)}, thin{this, At(10)},
        thick{this, At(11)};
};

TEST(Looks, StandOnWholePixelsAtEveryScale) {
    Row row;
    const std::string whole =
        "............................................................ "
        ".bbrr.rrrr.rrrr.bbbb.rr........rr...rrww.1111.2222.wbbw.wrrr "
        ".bbrr.rbbr.r..r.bbbb.rr...bb...rr...rbbw.1rr1.rrrr.wbbw.rbbb "
        ".rrrr.rrrr.rrrr.bbbb......bb........wbbw.1111.rrrr.wwww.rbbb ";
    const std::string half =
        ".......................................................................................... "
        ".......................................................................................... "
        "..bbbrrr.rrrrrr..rrrrrr.bbbbbb..rrr............rrr....rrrwww..111111.222222..wwbbbw.wwrrrr "
        "..bbbrrr.rbbbbr..r....r.bbbbbb..rrr............rrr....rrrwww..133331.222222..wwbbbw.wwrrrr "
        "..bbbrrr.rbbbbr..r....r.bbbbbb..rrr....bbb.....rrr....rrbbbw..13rrr1.rrrrrr..wwbbbw.rrbbbb "
        "..rrrrrr.rrrrrr..rrrrrr.bbbbbb.........bbb............wwbbbw..11rrr1.rrrrrr..wwwwww.rrbbbb ";
    EXPECT_EQ(Letters(Seen(row, 1)), whole);
    EXPECT_EQ(Letters(Seen(row, 1.5)), half);
}

TEST(Looks, AreShownAsSoonAsTheyChange) {
    Row row;
    Label label(&row, Row::At(0));
    row.show();
    QCoreApplication::processEvents();
    PaintWatch watch(row);
    const std::function<void()> changes[] = {[&] { row.frame.BackColor(kBlue); },
                                             [&] { row.frame.Background(Red()); },
                                             [&] { row.shape.Look(Qt::blue, {}); },
                                             [&] { row.sunk.Picture(Red()); },
                                             [&] { row.painted.PaintPicture(Red(), {}); },
                                             [&] {
                                                 row.painted.DrawBox({}, {1, 1}, kRed);
                                             },
                                             [&] { row.painted.Clear(); },
                                             [&] { row.painted.Picture(Red()); },
                                             [&] { Send(row.hover, QEvent(QEvent::Leave)); },
                                             [&] { Send(row.hover, QEnterEvent({}, {}, {})); },
                                             [&] { row.painted.BackColor(kRed); },
                                             [&] { label.Caption("l"); },
                                             [&] { label.ForeColor(kRed); },
                                             [&] { row.thin.ShowsPress(true), Press(row.thin); }};
    for (const auto& change : changes) {
        watch.painted = {};
        change();
        QCoreApplication::processEvents();
        EXPECT_FALSE(watch.painted.isEmpty()) << &change - changes;
    }
}

// Where the text is, in a label of 100 x 60 pixels.
TEST(Looks, TextKeepsItsPlaceAndColour) {
    QWidget window;
    window.resize(100, 60);
    Label label(&window, {"label", {0, 0, 1500, 900}, "llll"});
    label.ForeColor(kRed);
    const auto ink = [&window] {
        const QImage image = Seen(window, 1);
        QRect ink;
        for (int y = 0; y < 60; ++y)
            for (int x = 0; x < 100; ++x)
                if (qRed(image.pixel(x, y)) > 0) ink |= QRect(x, y, 1, 1);
        return ink;
    };
    EXPECT_LT(ink().right(), 40);
    EXPECT_NEAR(ink().center().y(), 30, 4);
    label.Alignment(Qt::AlignRight | Qt::AlignTop);
    EXPECT_TRUE(QRect(60, 0, 40, 25).contains(ink()));
    label.ShowsPress(true);
    const QRect resting = ink();
    Press(label);
    EXPECT_EQ(ink(), resting.translated(0, 1));
    label.Caption(QString("l ").repeated(40) + '\r');
    EXPECT_LT(ink().height(), 20);
    label.WordWrap(true);
    EXPECT_GT(ink().height(), 20);
    for (const auto& [link, over] : {std::pair{false, true}, {true, true}, {true, false}}) {
        label.IsLink(link);
        over ? Send(label, QEnterEvent({}, {}, {})) : Send(label, QEvent(QEvent::Leave));
        EXPECT_EQ(label.font().underline(), link && over);
    }
}

TEST(Pictures, KeepDrawingsUntilPictureOrClear) {
    PictureBox box(nullptr, {"box", {0, 0, 960, 960}, {}}, 2);
    const auto middle = [&box] { return box.Image().At(1).pixel(30, 30); };
    box.BackColor(0x0F0FFF);  // red 255, green 15, blue 15
    box.DrawMode(DrawMode::MaskPen);
    for (const Colour colour : {0x33FFF0, 0x33FF33}) box.DrawFilledBox({0, 0}, {60, 60}, colour);
    EXPECT_EQ(middle(), 0xFF300F03);
    const Picture kept = box.Image();
    box.Clear();
    EXPECT_EQ(middle(), 0xFFFF0F0F);
    EXPECT_EQ(kept.At(1).pixel(30, 30), 0xFF300F03);
    box.DrawFilledBox({0, 0}, {60, 60}, -1);  // a colour of the system
    EXPECT_EQ(middle(), 0xFF000000);
    box.Picture({});
    box.BackColor(kButtonFace);
    EXPECT_EQ(middle(), QPalette().color(QPalette::Button).rgb());
    EXPECT_EQ(box.Image().At(1.25).devicePixelRatio(), 1.25);
    EXPECT_EQ(box.Image().At(1.25).size(), QSize(75, 75));  // 60 x 60 inside a border of two pixels
    const auto scarce = std::make_shared<Swatch>(Qt::red);
    scarce->memory = false;
    EXPECT_TRUE(Picture(scarce, 0).At(1).isNull());
}

TEST(Pictures, OfTheWindowAreDrawnForTheirScalesAndFittedBetween) {
    const Picture bar = WindowArt("menubar");
    const QSizeF size = bar.At(1).size();
    for (const auto& [scale, percent] :
         {std::pair{0.5, 100}, {1.1, 125}, {1.5, 150}, {1.7, 175}, {1.8, 200}, {2.5, 300}, {3.5, 300}}) {
        const QImage seen = bar.At(scale), drawn = PackedPixels(QString("window/menubar@%1").arg(percent));
        EXPECT_NEAR(seen.width(), size.width() * scale, 1);
        EXPECT_NEAR(seen.height(), size.height() * scale, 1);
        EXPECT_EQ(seen.devicePixelRatio(), scale);
        EXPECT_EQ(seen, drawn.scaled(seen.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation)) << scale;
    }
    EXPECT_TRUE(WindowArt("none").At(1).isNull());
}

TEST(Sheets, OfAnySizeAreCutIntoFittedCellsAndReadAgainWhenTheyChange) {
    const QTemporaryDir folder;
    const QString path = folder.filePath("sheet.png");
    PictureClip clip;
    EXPECT_TRUE(clip.Cell(0).IsEmpty() && clip.Thumbnail().IsEmpty());
    for (const QSize size : {QSize(3, 13), QSize(99, 208), QSize(540, 2340), QSize(30, 260)}) {
        QImage sheet(size, QImage::Format_RGB32);  // its cells are told apart by red and green
        for (int y = 0; y < size.height(); ++y)
            for (int x = 0; x < size.width(); ++x)
                sheet.setPixel(x, y, qRgb(x * 3 / size.width() * 100, y * 13 / size.height() * 15, 50));
        sheet.save(path);
        ASSERT_EQ(clip.Load(path), "");
        const Picture first = clip.Cell(0);
        EXPECT_EQ(clip.Load(path), "");
        EXPECT_EQ(clip.Cell(0), first) << "read again";
        const QSize cell(size.width() / 3, size.height() / 13);
        const QRect fitted({}, cell.scaled(120, 120, Qt::KeepAspectRatio));
        const QRect place = fitted.translated(QPoint(60, 60) - QPoint(fitted.width(), fitted.height()) / 2);
        for (int number : {0, 1, 2, 3, 19, 38}) {
            EXPECT_EQ(clip.Cell(number).At(1).size(), QSize(60, 60));
            const QImage image = clip.Cell(number).At(2);
            EXPECT_EQ(image.size(), QSize(120, 120));
            EXPECT_EQ(image.devicePixelRatio(), 2);
            EXPECT_EQ(image.pixel(60, 60), qRgb(number % 3 * 100, number / 3 * 15, 50)) << number;
            for (const QPoint at : {QPoint(0, 60), QPoint(60, 0), QPoint(119, 60), QPoint(60, 119)})
                EXPECT_EQ(qAlpha(image.pixel(at)), place.contains(at) ? 255 : 0);
        }
        EXPECT_TRUE(clip.Cell(39).At(1).isNull() && clip.Cell(-1).At(1).isNull());
        EXPECT_EQ(clip.Thumbnail().At(1.5).pixelColor(45, 45), QColor(0, 0, 50));
    }
    QFile::remove(path);
    const Picture last = clip.Cell(0);
    EXPECT_EQ(clip.Load(path), "\"sheet.png\" is not there.");
    EXPECT_EQ(clip.Cell(0), last);
}

}  // namespace
