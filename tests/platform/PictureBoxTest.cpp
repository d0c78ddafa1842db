#include "platform/PictureBox.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <new>

#include "platform/PictureClip.h"

TEST(PictureContents, OutlinesLieAboutTheirEdgesAtEveryScale) {
    const std::tuple<const char*, int, qreal, std::string> cases[] = {
        {"width 3 about (2, 2) to (8, 8)", 3, 1, ".###...###.."},
        {"width 2 about the same edges", 2, 1, ".##....##..."},
        {"twice as large", 3, 2, "..######......######...."},
        {"one and a half: whole device pixels", 3, 1.5, "..#####...#####..."},
    };
    for (const auto& [what, width, scale, expected] : cases) {
        PictureContents contents{{12, 12}, kWhite, {}, {}};
        contents.drawings.emplace_back(DrawnBox{QRect(2, 2, 6, 6), width, kRed, DrawMode::CopyPen});
        const QImage image = contents.Render(scale);
        std::string across;
        for (int x = 0; x < image.width(); ++x)
            across += image.pixelColor(x, qRound(5.4 * scale)) == QColor(Qt::red) ? '#' : '.';
        EXPECT_EQ(across, expected) << what;
    }
}

namespace {

struct Scarce final : PictureSource {
    mutable bool memory = false;
    QImage Render(int /*cell*/, qreal /*scale*/) const override {
        if (!memory) throw std::bad_alloc();
        QImage image(60, 60, QImage::Format_RGB32);
        image.fill(Qt::blue);
        return image;
    }
};

}  // namespace

TEST(PictureBox, LeavesOutAPictureWhileThereIsNoMemoryForIt) {
    PictureBox box(nullptr, {"box", {0, 0, 900, 900}, {}}, 0);
    const auto scarce = std::make_shared<Scarce>();
    box.Picture({scarce, 0});
    EXPECT_EQ(box.grab().toImage().pixelColor(30, 30), QColor(Qt::white));
    scarce->memory = true;
    EXPECT_EQ(box.grab().toImage().pixelColor(30, 30), QColor(Qt::blue));
}

TEST(PictureBox, KeepsDrawingsUntilPictureOrClear) {
    QWidget window;
    PictureBox box(&window, {"box", {0, 0, 960, 960}, {}}, 2);
    const auto middle = [&box] { return box.Contents().Render(1).pixelColor(30, 30); };
    box.DrawMode(DrawMode::MaskPen);
    box.BackColor(0x0F0FFF);  // red 255, green 15, blue 15
    box.DrawFilledBox({0, 0}, {60, 60}, 0x33FFF0);
    EXPECT_EQ(middle(), QColor(0xF0, 0x0F, 0x03));
    const Picture kept = box.Image();
    box.Clear();
    EXPECT_EQ(middle(), QColor(255, 15, 15));
    EXPECT_EQ(kept.At(1).pixelColor(30, 30), QColor(0xF0, 0x0F, 0x03));
    box.DrawFilledBox({0, 0}, {60, 60}, kBlack);
    box.Picture({});
    EXPECT_EQ(middle(), QColor(255, 15, 15));
    // Inside a border of two pixels the drawing area is 60 x 60 and clips what is drawn.
    EXPECT_EQ(box.Contents().Render(1.25).size(), QSize(75, 75));
}

TEST(PictureSheet, CutsAnySizeIntoFittedCells) {
    QTemporaryDir folder;
    const QString path = folder.filePath("sheet.png");
    for (const QSize size : {QSize(3, 13), QSize(99, 208), QSize(540, 2340)}) {
        QImage sheet(size, QImage::Format_RGB32);
        for (int y = 0; y < size.height(); ++y)
            for (int x = 0; x < size.width(); ++x)
                sheet.setPixel(x, y, qRgb(x * 3 / size.width() * 100, y * 13 / size.height() * 15, 50));
        sheet.save(path);
        QString why;
        const auto cut = PictureSheet::Load(path, why);
        ASSERT_TRUE(cut) << why.toStdString();
        for (int cell : {0, 1, 2, 3, 19, 38}) {
            const QImage image = cut->Render(cell, 2);
            EXPECT_EQ(image.size(), QSize(120, 120));
            EXPECT_EQ(image.pixelColor(60, 60), QColor(cell % 3 * 100, cell / 3 * 15, 50)) << cell;
        }
        EXPECT_TRUE(cut->Render(39, 1).isNull() && cut->Render(-1, 1).isNull());
    }
}

TEST(PictureClip, ReadsAFileAgainOnlyWhenItHasChanged) {
    QTemporaryDir folder;
    const QString path = folder.filePath("skin.png");
    PictureClip clip;
    const auto load = [&](int width, QRgb colour) {
        QImage image(width, 13, QImage::Format_RGB32);
        image.fill(colour);
        EXPECT_TRUE(image.save(path));
        EXPECT_EQ(clip.Load(path), "");
        return clip.Cell(5);
    };
    const Picture red = load(3, qRgb(255, 0, 0));
    EXPECT_EQ(clip.Load(path), "");
    EXPECT_EQ(clip.Cell(5), red);
    const Picture blue = load(6, qRgb(0, 0, 255));
    EXPECT_EQ(blue.At(1).pixelColor(30, 30), QColor(0, 0, 255));
    QFile::remove(path);
    EXPECT_EQ(clip.Load(path), "\"skin.png\" is not there.");
    EXPECT_EQ(clip.Cell(5), blue);
}

TEST(PictureSheet, SaysWhyAFileIsNoSheet) {
    QTemporaryDir folder;
    QImage(300, 200, QImage::Format_RGB32).save(folder.filePath("stone.png"));
    QImage(200, 260, QImage::Format_RGB32).save(folder.filePath("brick.png"));
    QImage(4002, 4004, QImage::Format_Mono).save(folder.filePath("wall.png"));
    EXPECT_EQ(WhyNotASheet(folder.filePath("stone.png")),
              "\"stone.png\" is 300 x 200 pixels; a skin is 3 cells wide and 13 high, at least 3 x 13 "
              "pixels: its width divides by 3 and its height by 13.");
    EXPECT_TRUE(WhyNotASheet(folder.filePath("brick.png")).startsWith("\"brick.png\" is 200 x 260 pixels"));
    EXPECT_TRUE(WhyNotASheet(folder.filePath("wall.png")).startsWith("\"wall.png\" is 4002 x 4004 pixels"));
    EXPECT_EQ(WhyNotASheet(folder.filePath("none.png")), "\"none.png\" is not there.");
}
