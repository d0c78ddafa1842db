#include <gtest/gtest.h>

#include "tests/support/Files.h"
#include "tests/support/GameWindow.h"

namespace {

// A bitmap's head that claims a size and holds no pixels.
QByteArray BitmapClaiming(int width, int height) {
    QByteArray head("BM\0\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0", 18);
    const auto number = [&head](int value) { head.append(reinterpret_cast<const char*>(&value), 4); };
    number(width), number(height);
    head.append("\x01\0\x18\0\0\0\0\0", 8).append(QByteArray(16, '\0'));
    return head;
}

TEST(Skins, OnlyPicturesOf3x13CellsTakeASlot) {
    GameWindow game;
    const QString art = game.folder.filePath("Art/");
    const QByteArray good = ReadFile(art + "test.png");
    const std::pair<const char*, QByteArray> bad[] = {
        {"a-empty.png", {}},
        {"b-text.png", "this is no picture"},
        {"c-half.png", good.first(good.size() / 2)},
        {"d-head.png", good.first(30)},
        {"e-zero.bmp", BitmapClaiming(0, 0)},
        {"f-small.bmp", BitmapClaiming(2, 12)},
        {"g-huge.bmp", BitmapClaiming(999'999'999, 999'999'988)},
    };
    for (const auto& [name, bytes] : bad) WriteFile(art + name, bytes);
    WriteSkin(art + "z.png");
    QImage bomb(12'000, 13'000, QImage::Format_Mono);  // whole, and a thousand times as large as its file
    bomb.fill(0);
    bomb.save(art + "bomb.png");
    QDir().mkdir(art + "folder.png");
    MakePipe(art + "pipe.png");
    QFile::link("/dev/zero", art + "device.png");
    game.Open();
    game.Play();
    EXPECT_TRUE(game.dialogs.told.isEmpty());
    EXPECT_EQ(game.form->SkinCount, 2);
    EXPECT_EQ(game.form->skinFile[1], "z.png");
    EXPECT_EQ(game.form->lblSkinName.Caption(), "test");
    EXPECT_EQ(game.Model().SetSkinPicture(), "test.png");
}

TEST(Skins, TheFirstTwelveByNameFillTheSlots) {
    GameWindow game;
    for (const char letter : QByteArray("BaCdefghijklm"))
        WriteSkin(game.folder.filePath(QString("Art/%1.png").arg(letter)));
    game.Open();
    EXPECT_EQ(game.form->SkinCount, 12);
    EXPECT_EQ(game.form->skinFile[1], "B.png");
    EXPECT_EQ(game.form->skinFile[11], "l.png");
}

TEST(Skins, TheRedFrameFollowsTheMouseAndTheChoice) {
    GameWindow game;
    for (const char* name : {"u.png", "v.png"}) WriteSkin(game.folder.filePath(QString("Art/%1").arg(name)));
    game.Open();
    game.form->FinishSkinSlots();
    const auto framed = [&game] {  // the numbers of the slots with a red frame
        QString red;
        for (std::size_t slot = 0; slot < 12; ++slot)
            if (game.form->picSkin[slot].Contents().Render(1).pixelColor(1, 20) == QColor(Qt::red))
                red += QString::number(slot);
        return red;
    };
    EXPECT_EQ(framed(), "0");
    game.form->picSkin_MouseMove(1, 0, 0, 0, 0);
    EXPECT_EQ(framed(), "1");
    game.form->picSkin_MouseMove(5, 0, 0, 0, 0);  // an empty slot changes nothing
    EXPECT_EQ(framed(), "1");
    game.form->picSkin_MouseMove(0, 0, 0, 0, 0);
    EXPECT_EQ(framed(), "0");
    game.form->picSkin_MouseUp(2, 1, 0, 0, 0);
    EXPECT_EQ(framed(), "2");
    EXPECT_EQ(game.form->lblSkinName.Caption(), "v");
    EXPECT_EQ(game.Model().SetSkinPicture(), "v.png");
    for (int i = 0; i < 1000; ++i) game.form->picSkin_MouseMove(static_cast<std::int16_t>(i % 3), 0, 0, 0, 0);
    EXPECT_LE(game.form->picSkin[0].Contents().drawings.size(), 2u);  // frames do not pile up
}

TEST(Skins, AGameKeepsItsPicturesUntilTheNextOne) {
    GameWindow game;
    WriteSkin(game.folder.filePath("Art/u.png"), {40, 30});
    game.Open();
    game.Play();
    const Picture shown = game.Cell(12).Picture();
    game.form->picSkin_MouseUp(1, 1, 0, 0, 0);
    QFile::remove(game.folder.filePath("Art/test.png"));
    EXPECT_EQ(game.Cell(12).Picture(), shown);
    EXPECT_EQ(shown.At(2).size(), QSize(120, 120));  // still there at another scale
    game.Play();
    EXPECT_EQ(game.Card(0).At(1).pixelColor(30, 3).alpha(), 0);  // 40 x 30 keeps its aspect
}

}  // namespace
