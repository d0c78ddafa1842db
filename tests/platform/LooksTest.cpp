// What controls paint, pixel by pixel, at rest and under the mouse and the keyboard, and the pictures they
// paint it from.

#include <QBitmap>
#include <QEnterEvent>

#include "platform/pictures/PixelFile.h"
#include "tests/support/GameWindow.h"

namespace {

constexpr Colour kBlue = 0xFF0000;

// One colour, 2 x 2 logical pixels.
Picture Swatch(Colour colour) {
    PictureBox box(nullptr, {"", {0, 0, 30, 30}, ""});
    box.BackColor(colour);
    return box.Image();
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

// The mouse comes over a control or leaves it.
void Hover(QWidget& control, bool over) {
    QEnterEvent enter({}, {}, {});
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&control, over ? &enter : &leave);
}

// Records which part of the watched control was repainted last.
struct PaintWatch : QObject {
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint) rect_ = static_cast<QPaintEvent*>(event)->rect();
        return false;
    }
    QRect Painted() {
        rect_ = {};
        QCoreApplication::processEvents();
        return rect_;
    }
    QRect rect_;
};

// Twelve controls of 4 x 3 pixels side by side. At one and a half, every other one begins between two device
// pixels.
struct Row : QWidget {
    Row() {
        resize(60, 4);
        frame.BackColor(kRed), frame.Background(blue);
        shape.Look(Qt::red, Qt::blue), outline.Look(Qt::red, {}), inside.Look({}, Qt::blue);
        for (Image* image : {&hover, &sunk, &pressed}) image->Picture(blue), image->ShowsPress(true);
        hover.HoverPicture(red), hover.setAttribute(Qt::WA_UnderMouse);
        pressed.PressedPicture(red);
        painted.Picture(red), painted.PaintPicture(blue, {1, 1});
        for (PictureBox* box : {&bordered, &down, &thin, &thick}) box->BackColor(kRed);
        down.ShowsPress(true);
        thin.DrawBox({0, 0}, {3, 2}, kWhite), thin.DrawFilledBox({1, 0}, {3, 2}, kBlue);
        thick.DrawWidth(2), thick.DrawBox({2, 2}, {7, 7}, kBlue), thick.DrawBox({-4, -4}, {0, 0}, kWhite);
        for (QWidget* control : std::initializer_list<QWidget*>{&sunk, &pressed, &down})
            QTest::mousePress(control, Qt::LeftButton);
        for (QWidget* control : findChildren<QWidget*>()) control->installEventFilter(&watch);
    }
    static Placement At(int number) { return {"", {15 + 75 * number, 15, 60, 45}, ""}; }
    const Picture red = Swatch(kRed), blue = Swatch(kBlue);
    Frame frame{this, At(0)};
    Shape shape{this, At(1)}, outline{this, At(2)}, inside{this, At(3)};
    Image hover{this, At(4)}, sunk{this, At(5)}, pressed{this, At(6)};
    PictureBox painted{this, At(7)}, bordered{this, At(8), 1}, down{this, At(9)};
    PictureBox thin{this, At(10)}, thick{this, At(11)};
    Label label{this, At(0)};
    PaintWatch watch;
};

TEST(Looks, StandOnWholePixelsAtEveryScaleAndAreShownAsSoonAsTheyChange) {
    Row row;
    EXPECT_EQ(Letters(Seen(row, 1.5)),
              ".......................................................................................... "
              ".......................................................................................... "
              "..bbbrrr.rrrrrr..rrrrrr.bbbbbb..rrr............rrr....rrrwww..111111.222222..wwbbbw.wwrrrr "
              "..bbbrrr.rbbbbr..r....r.bbbbbb..rrr............rrr....rrrwww..133331.222222..wwbbbw.wwrrrr "
              "..bbbrrr.rbbbbr..r....r.bbbbbb..rrr....bbb.....rrr....rrbbbw..13rrr1.rrrrrr..wwbbbw.rrbbbb "
              "..rrrrrr.rrrrrr..rrrrrr.bbbbbb.........bbb............wwbbbw..11rrr1.rrrrrr..wwwwww.rrbbbb ");
    row.show();
    QCoreApplication::processEvents();
    auto shown = [&row, change = 0]() mutable { EXPECT_FALSE(row.watch.Painted().isEmpty()) << change++; };
    row.frame.BackColor(kBlue), shown(), row.frame.Background(row.red), shown();
    row.shape.Look(Qt::blue, {}), shown(), row.sunk.Picture(row.red), shown();
    row.painted.PaintPicture(row.red, {}), shown(), row.painted.DrawBox({}, {1, 1}, kRed), shown();
    row.painted.Clear(), shown(), row.painted.Picture(row.blue), shown(), row.painted.BackColor(0), shown();
    Hover(row.hover, false), shown(), Hover(row.hover, true), shown();
    row.label.Caption("l"), shown(), row.label.ForeColor(kRed), shown();
    row.thin.ShowsPress(true), QTest::mousePress(&row.thin, Qt::LeftButton), shown();
}

TEST(Looks, OfTheTimeBarArePaintedAnewWhereATickFills) {
    TimeBar bar(nullptr, {"bar", {0, 0, 20 * kTwipsPerPixel, 100 * kTwipsPerPixel}, {}}, TimeBarDesign());
    PaintWatch watch;
    bar.installEventFilter(&watch);
    bar.show();
    QCoreApplication::processEvents();
    // The row before the fill line is left as it was.
    for (const auto& [value, back, rows] : {std::tuple(30, 0x404040, QRect(0, 0, 20, 29)),
                                            {31, 0x404040, {0, 29, 20, 1}},
                                            {31, 0x404040, {}},
                                            {31, 0, {0, 31, 20, 69}}}) {
        bar.Bar().BackColour(back), bar.Value(value);
        EXPECT_EQ(watch.Painted(), rows);
        EXPECT_EQ(bar.grab().toImage().pixel(19, value - 2), 0xFFE0E0E0);
    }
    const QImage plain = bar.grab().toImage();
    bar.Bar().ShowPercent(true);
    EXPECT_NE(bar.grab().toImage(), plain) << "no caption";
}

// Where the text is, in a label of 100 x 60 pixels.
TEST(Looks, TextKeepsItsPlaceAndColour) {
    QWidget window;
    window.resize(100, 60);
    Label label(&window, {"label", {0, 0, 1500, 900}, "llll"});
    const auto ink = [&window] {
        const QImage image = Seen(window, 1).convertToFormat(QImage::Format_RGB32);
        return QRegion(QBitmap::fromImage(image.createMaskFromColor(0xFF000000))).boundingRect();
    };
    EXPECT_TRUE(ink().isEmpty());
    label.ForeColor(kRed);
    EXPECT_TRUE(QRect(0, 20, 40, 22).contains(ink()));
    label.Alignment(Qt::AlignRight | Qt::AlignTop);
    EXPECT_TRUE(QRect(60, 0, 40, 25).contains(ink()));
    for (const bool wraps : {false, true}) {
        label.Caption(QString("l ").repeated(40) + '\r'), label.WordWrap(wraps);
        EXPECT_EQ(ink().height() > 20, wraps);
    }
    for (const auto& [link, over] : {std::pair{false, true}, {true, true}, {true, false}}) {
        label.IsLink(link), Hover(label, over);
        EXPECT_EQ(label.font().underline(), link && over);
    }
    LineLabel line(&window, {"line", {0, 0, 1500, 900}, QString("l\x1\n").repeated(30)});
    line.ForeColor(kRed), line.show(), label.hide();
    EXPECT_TRUE(ink().height() < 20 && ink().right() > 80 && line.Caption().size() == 90);
    line.Caption("a  b");
    EXPECT_EQ(line.Shown(), "a  b");
}

// After each letter: whether the label is seen down or up, and "!" for a click that found it up. The letters
// stand for press, double click, release and move, inside and (O, >) outside, of the right button when they
// are small; and for hide and show.
std::string Answer(Label& label, const std::string& letters) {
    using enum QEvent::Type;
    static const std::map<char, QEvent::Type> types{
        {'P', MouseButtonPress},   {'D', MouseButtonDblClick}, {'R', MouseButtonRelease}, {'<', MouseMove},
        {'O', MouseButtonRelease}, {'p', MouseButtonPress},    {'r', MouseButtonRelease}, {'>', MouseMove}};
    const auto look = [&label] { return label.grab().toImage(); };
    label.show();
    const QImage resting = look();
    std::string answer, clicks;
    label.onClick = [&] { clicks += look() == resting ? '!' : '?'; };
    for (const char letter : letters) {
        const QPointF at(letter == 'O' || letter == '>' ? 40 : 39, 19);
        const auto button = std::islower(letter) ? Qt::RightButton : Qt::LeftButton;
        if (types.contains(letter)) {
            QMouseEvent event(types.at(letter), at, at, button, button, {});
            QCoreApplication::sendEvent(&label, &event);
        } else if (letter != ' ') {
            label.setVisible(letter == 's');
        }
        answer += letter == ' ' ? " " : (look() == resting ? "u" : "d") + std::exchange(clicks, {});
    }
    return answer;
}

TEST(Controls, AreSeenPressedWhileTheLeftButtonIsHeldOverThem) {
    Label label(nullptr, {"", {0, 0, 600, 300}, "text"});  // 40 x 20 pixels
    const std::string letters = "PR P><R P>O pr PrR PRDR >< PhRsR";
    EXPECT_EQ(Answer(label, letters), "uu! uuuu! uuu uu uuu! uu!uu! uu uuuuu!") << "no press is shown";
    label.ShowsPress(true);
    EXPECT_EQ(Answer(label, letters), "du! dudu! duu uu ddu! du!du! uu duuuu!");
}

TEST(Pictures, KeepDrawingsUntilPictureOrClear) {
    PictureBox box(nullptr, {"box", {0, 0, 960, 960}, {}}, 2);
    const auto middle = [](const Picture& picture) { return picture.At(1).pixel(30, 30); };
    box.BackColor(0x0F0FFF);  // red 255, green 15, blue 15
    box.DrawMode(DrawMode::MaskPen);
    for (const Colour colour : {0x33FFF0, 0x33FF33}) box.DrawFilledBox({0, 0}, {60, 60}, colour);
    const Picture kept = box.Image();
    box.Clear();
    EXPECT_TRUE(middle(box.Image()) == 0xFFFF0F0F && middle(kept) == 0xFF300F03);
    EXPECT_EQ(kept.At(1.25).size(), QSize(75, 75));  // 60 x 60 inside a border of two pixels
    box.DrawFilledBox({0, 0}, {60, 60}, -1);         // a colour of the system that is none
    EXPECT_EQ(middle(box.Image()), 0xFF000000);
    box.Picture({}), box.BackColor(kButtonFace);
    EXPECT_EQ(middle(box.Image()), QPalette().color(QPalette::Button).rgb());
    box.DrawWidth(2), box.DrawMode(DrawMode::CopyPen), box.DrawBox({10, 10}, {50, 50}, kRed);
    const auto red = [image = box.Image().At(3)](int x) { return image.pixel(x, 90) == 0xFFFF0000; };
    EXPECT_TRUE(!red(26) && red(27) && red(32) && !red(33));
}

struct NoMemory : PictureSource {
    QImage Render(int, qreal) const override { throw std::bad_alloc(); }
};

TEST(Pictures, OfTheWindowAreDrawnForTheirScalesAndFittedBetween) {
    const Picture bar = WindowArt("menubar");
    const qreal width = bar.At(1).width();
    for (const auto& [scale, percent] :
         {std::pair{0.5, 100}, {1.1, 125}, {1.5, 150}, {1.7, 175}, {1.8, 200}, {2.5, 300}, {3.5, 300}}) {
        const QImage seen = bar.At(scale), drawn = PackedPixels(QString("window/menubar@%1").arg(percent));
        EXPECT_NEAR(seen.deviceIndependentSize().width(), width, 1 / scale);
        EXPECT_EQ(seen, drawn.scaled(seen.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation)) << scale;
    }
    EXPECT_TRUE(WindowArt("none").At(1).isNull() && Picture(std::make_shared<NoMemory>(), 0).At(1).isNull());
}

TEST(Sheets, OfAnySizeAreCutIntoFittedCellsAndReadAgainWhenTheyChange) {
    const QTemporaryDir folder;
    const QString path = folder.filePath("sheet.png");
    PictureClip clip;
    EXPECT_TRUE(clip.Cell(0).IsEmpty() && clip.Thumbnail().IsEmpty());
    for (const QSize size :
         {QSize(3, 13), QSize(99, 208), QSize(541, 2341), QSize(900, 3900), QSize(30, 260)}) {
        QImage sheet(3, 13, QImage::Format_RGB32);  // its cells are told apart by red and green
        for (int i = 0; i < 39; ++i) sheet.setPixel(i % 3, i / 3, qRgb(i % 3 * 100, i / 3 * 15, 50));
        sheet.scaled(size).save(path);
        ASSERT_EQ(clip.Load(path), "");
        const Picture first = clip.Cell(0);
        EXPECT_EQ(clip.Load(path), "");
        EXPECT_EQ(clip.Cell(0), first) << "read again";
        for (const int number : {0, 19, 38}) {
            const QImage image = clip.Cell(number).At(2);
            EXPECT_EQ(image.pixel(60, 60), qRgb(number % 3 * 100, number / 3 * 15, 50)) << number;
            EXPECT_EQ(qAlpha(image.pixel(0, 60)) == 255, 13 * size.width() >= 3 * size.height());
            EXPECT_EQ(qAlpha(image.pixel(60, 119)) == 255, 13 * size.width() <= 3 * size.height() + 99);
        }
        EXPECT_TRUE(clip.Cell(39).At(1).isNull() && clip.Cell(-1).At(1).isNull());
        QString why;
        for (const Picture& thumbnail : {clip.Thumbnail(), PictureSheet::LoadThumbnail(path, why)})
            EXPECT_EQ(thumbnail.At(1.5).pixelColor(45, 45), QColor(0, 0, 50));
    }
    QFile::remove(path);
    EXPECT_EQ(clip.Load(path), "\"sheet.png\" was not found.");
    EXPECT_FALSE(clip.Cell(0).IsEmpty()) << "the last good one stays";
}

}  // namespace
