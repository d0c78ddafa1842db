// Which files fill the slots, what becomes of dropped ones, and that none is ever lost.

#include <gtest/gtest.h>

#include <QBuffer>
#include <QCoreApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

#include "tests/support/Files.h"
#include "tests/support/GameWindow.h"

namespace {

const QString kQuestion = "Are You Sure You want To Replace This Skin !";

QByteArray Encoded(QSize size, const char* format = "PNG") {
    QImage image(size, QImage::Format_Mono);
    image.fill(0);
    QBuffer buffer;
    image.save(&buffer, format);
    return buffer.data();
}

// Makes files that are no skins in `folder`. Gives their names and what the player is told of each.
QList<std::pair<QString, QString>> MakeBadSkins(const QDir& folder) {
    const QByteArray png = Encoded({300, 1300}), jpeg = Encoded({300, 1300}, "JPEG");
    const QString damaged = "is damaged: its picture cannot be read to the end.", none = "is not there.";
    const std::tuple<QString, QByteArray, QString> files[] = {
        {"empty.png", {}, "is not a picture that can be read here."},
        {"text.png", "this is no picture", "is not a picture that can be read here."},
        {"half.png", png.first(png.size() / 2), damaged},
        {"half.jpg", jpeg.chopped(2), damaged},
        {"narrow.png", Encoded({2, 13}), "is 2 x 13 pixels; a skin is 3 cells wide and 13 high"},
        {"low.png", Encoded({3, 12}), "is 3 x 12 pixels; a skin is 3 cells wide and 13 high"},
        {"large.png", Encoded({4002, 4004}), "is 4002 x 4004 pixels; a skin has at most 16 million pixels."},
        {"long.png", {}, "is larger than 64 megabytes, the most a skin may have."},
    };
    QList<std::pair<QString, QString>> bad{{"gone.png", none}, {"folder.png", none}, {"pipe.png", none}};
    for (const auto& [name, bytes, told] : files) {
        WriteFile(folder.filePath(name), bytes);
        bad.append({name, told});
    }
    QFile::resize(folder.filePath("long.png"), kMostSheetBytes + 1);
    folder.mkdir("folder.png");
    MakePipe(folder.filePath("pipe.png"));
    return bad;
}

class Skins : public testing::Test {
protected:
    Skins() {
        for (const char* name : {"u.png", "v.png"}) WriteSkin(InArt(name), {40, 30});
        game.Open();
        game.form->FinishSkinSlots();
    }
    // Drops what `urls` name on a slot; whether it was taken.
    bool Drop(int slot, const QList<QUrl>& urls) {
        game.dialogs.told.clear();
        QMimeData data;
        data.setUrls(urls);
        QWidget* box = &game.form->picSkin[std::size_t(slot)];
        QDragEnterEvent enter({5, 5}, Qt::MoveAction | Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        enter.ignore();
        QCoreApplication::sendEvent(box, &enter);
        QDropEvent drop({5, 5}, Qt::MoveAction | Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(box, &drop);
        EXPECT_EQ(drop.isAccepted() && drop.dropAction() == Qt::CopyAction, enter.isAccepted());
        return enter.isAccepted();
    }
    bool Drop(int slot, const QString& path) {
        return Drop(slot, {QUrl::fromLocalFile(path), QUrl("https://a.example")});
    }
    QString NewSkin(const QString& name) {
        WriteSkin(outside.filePath(name), {7, 5});
        return outside.filePath(name);
    }
    [[nodiscard]] QString InArt(const QString& name) const { return game.folder.filePath("Art/" + name); }
    [[nodiscard]] QStringList Art() const {
        return QDir(InArt("")).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }
    // The numbers of the slots with a red frame.
    [[nodiscard]] QString Framed() const {
        QString red;
        for (std::size_t slot = 0; slot < 12; ++slot)
            if (game.form->picSkin[slot].Contents().Render(1).pixelColor(1, 20) == QColor(Qt::red))
                red += QString::number(slot);
        return red;
    }

    GameWindow game;
    QTemporaryDir outside;
};

TEST_F(Skins, ThatAreNoneTakeNoSlotAndAreRefused) {
    const QStringList before = Art();
    game.dialogs.answer = true;
    for (const auto& [name, told] : MakeBadSkins(outside.path())) {
        Drop(1, outside.filePath(name));
        ASSERT_FALSE(game.dialogs.told.isEmpty()) << name.toStdString();
        EXPECT_TRUE(game.dialogs.told.last().startsWith('"' + name + "\" " + told))
            << game.dialogs.told.last().toStdString();
        EXPECT_EQ(Art(), before);
    }
    EXPECT_TRUE(QFile::exists(outside.filePath("half.png")));
    MakeBadSkins(InArt(""));
    game.Open();
    EXPECT_EQ(game.form->skinFile[0], "half.jpg");  // listed by its head
    game.form->FinishSkinSlots();
    EXPECT_EQ(game.form->skinFile[0] + game.form->skinFile[2] + game.form->skinFile[3], "test.pngv.png");
    EXPECT_EQ(game.form->picSkin[2].focusPolicy(), Qt::TabFocus);
    EXPECT_EQ(game.form->picSkin[3].focusPolicy(), Qt::NoFocus);
    EXPECT_EQ(game.Model().SetSkinPicture(), "test.png");
    for (const char letter : QByteArray("BaCdegijklm")) WriteSkin(InArt(QString("%1.png").arg(letter)));
    game.Open();  // the first twelve by name, some of them damaged
    EXPECT_EQ(game.form->SkinCount, 12);
    EXPECT_EQ(game.form->skinFile[1] + game.form->skinFile[11], "B.pngl.png");
}

TEST_F(Skins, DroppedOnesTakeASlotUnderAFreeName) {
    const QString longest = QString(251, 'a') + ".png";
    // The slot it falls on and the one it fills, the name it gets; no name when it is not taken.
    const std::tuple<const char*, int, QString, int, QString> cases[] = {
        {"without a yes", 1, "new.png", 0, ""},
        {"on a full slot", 1, "new.png", 1, "new.png"},
        {"on an empty one", 7, "u.png", 3, "u.png"},
        {"another skin's name", 9, "u.png", 4, "u-2.png"},
        {"and again", 11, "u.png", 5, "u-3.png"},
        {"in another case", 6, "V.PNG", 6, "V-2.PNG"},
        {"that of the skin replaced is free", 3, "u.png", 3, "u.png"},
        {"so is it in another case", 3, "U.png", 3, "U.png"},
        {"without an ending, with percent signs", 9, "a%1%2", 7, "a%1%2"},
        {"and again", 9, "a%1%2", 8, "a%1%2-2"},
        {"and two more", 9, "x.y.png", 9, "x.y.png"},
        {"to fill all slots", 11, "x.y.png", 10, "x.y-2.png"},
        {"that would be hidden", 11, ".incoming-a.png", 11, "_incoming-a.png"},
        {"all dots", 11, "...", 11, "_.."},
        {"with the folder's separator", 11, "..\\..\\a.png", 11, "_._.._a.png"},
        {"markup and lines", 1, "<b>\"a'&\n\t$(b);.png", 1, "<b>\"a'&\n\t$(b);.png"},
        {"as long as can be", 1, longest, 1, longest},
        {"too long to be made free", 0, longest, 1, ""},
    };
    QStringList art = Art();
    for (const auto& [what, slot, name, filled, becomes] : cases) {
        SCOPED_TRACE(what);
        const bool full = slot < game.form->SkinCount;
        const QString replaced = game.form->skinFile[std::size_t(slot)], file = NewSkin(name);
        EXPECT_TRUE(Drop(slot, file));
        if (!becomes.isEmpty()) art.removeOne(replaced), art.append(becomes), art.sort();
        EXPECT_EQ(Art(), art);
        EXPECT_EQ(QFile::exists(file), becomes.isEmpty());
        EXPECT_EQ(game.dialogs.told.contains(kQuestion), full);
        EXPECT_EQ(game.dialogs.told.size(), full + (full && becomes.isEmpty() && game.dialogs.answer));
        EXPECT_EQ(game.form->CurrentSkin, filled);
        EXPECT_EQ(game.Model().SetSkinPicture(), game.form->skinFile[std::size_t(filled)].toStdString());
        EXPECT_TRUE(becomes.isEmpty() || game.form->skinFile[std::size_t(filled)] == becomes);
        EXPECT_EQ(Framed(), QString::number(filled));
        EXPECT_EQ(game.form->SkinCount, art.size());
        game.dialogs.answer = true;
    }
}

TEST_F(Skins, OfALinkTheFileIsTakenAndTheLinkGoes) {
    const QString target = NewSkin("target.png"), link = outside.filePath("link.png");
    for (const QString& name : {link, InArt("a.png")}) QFile::link(target, name);
    game.Open();
    game.dialogs.answer = true;
    Drop(0, link);
    EXPECT_FALSE(QFileInfo(link).isSymLink() || QFileInfo(InArt("link.png")).isSymLink());
    EXPECT_TRUE(QFile::exists(target));
    Drop(0, InArt("v.png"));  // a file of the skin folder becomes the choice
    EXPECT_EQ(game.form->CurrentSkin, 3);
    EXPECT_TRUE(game.dialogs.told.isEmpty());
    EXPECT_FALSE(Drop(5, {QUrl("https://a.example"), QUrl::fromLocalFile(target)}) || Drop(5, QList<QUrl>()));
    EXPECT_EQ(Art(), QStringList({"link.png", "test.png", "u.png", "v.png"}));
}

TEST_F(Skins, TheRedFrameFollowsTheMouseAndTheChoice) {
    frmGame& form = *game.form;
    for (const auto& [slot, framed] : {std::pair{-1, 0}, {1, 1}, {5, 1}, {0, 0}}) {  // 5 is empty
        form.picSkin_MouseMove(std::int16_t(slot), 0, 0, 0, 0);
        EXPECT_EQ(Framed(), QString::number(framed));
    }
    form.picSkin_MouseUp(2, 1, 0, 0, 0);
    EXPECT_EQ(Framed() + form.lblSkinName.Caption(), "2v");
    for (int i = 0; i < 1000; ++i) form.picSkin_MouseMove(std::int16_t(i % 3), 0, 0, 0, 0);
    EXPECT_LE(form.picSkin[0].Contents().drawings.size(), 2u);  // frames do not pile up
}

TEST_F(Skins, AGameKeepsItsPicturesUntilTheNextOne) {
    game.Play();
    const Picture shown = game.Cell(12).Picture();
    game.form->picSkin_MouseUp(1, 1, 0, 0, 0);
    QFile::remove(InArt("test.png"));
    EXPECT_EQ(game.Cell(12).Picture(), shown);
    EXPECT_EQ(shown.At(2).size(), QSize(120, 120));  // still there at another scale
    game.Play();
    EXPECT_EQ(game.Card(0).At(1).pixelColor(30, 3).alpha(), 0);  // 40 x 30 keeps its aspect
}

}  // namespace
