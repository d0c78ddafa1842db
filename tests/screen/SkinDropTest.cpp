// Skins installed by dropping files on slots: what is asked, where they end up, and that no file is ever
// lost.

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

#include "tests/support/Files.h"
#include "tests/support/GameWindow.h"

namespace {

const QString kQuestion = "Are You Sure You want To Replace This Skin !";

class SkinDrop : public testing::Test {
protected:
    SkinDrop() {
        for (const QString& name : initial) WriteSkin(game.folder.filePath("Art/" + name));
        game.Open();
        game.form->FinishSkinSlots();
    }
    // Drops a file on slot `slot`; returns the slot it ended up in.
    std::int16_t Drop(std::int16_t slot, const QString& path) {
        std::int32_t effect = 0;
        game.form->picSkin_OLEDragDrop(slot, path, effect, 0, 0, 0, 0);
        return slot;
    }
    QString NewSkin(const QString& name) {
        WriteSkin(outside.filePath(name), {7, 5});
        return outside.filePath(name);
    }
    [[nodiscard]] QStringList Art() const {
        return QDir(game.folder.filePath("Art")).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }

    const QStringList initial{"test.png", "u.png", "v.png"};
    GameWindow game;
    QTemporaryDir outside;
};

TEST_F(SkinDrop, OnAnyEmptySlotFillsTheFirstAndIsChosen) {
    const QString file = NewSkin("new.png");
    EXPECT_EQ(Drop(7, file), 3);
    EXPECT_TRUE(game.dialogs.told.isEmpty());
    EXPECT_FALSE(QFile::exists(file));
    EXPECT_EQ(game.form->SkinCount, 4);
    EXPECT_EQ(game.form->lblSkinName.Caption(), "new");
    EXPECT_EQ(game.Model().SetSkinPicture(), "new.png");
    EXPECT_EQ(game.form->picSkin[3].Contents().Render(1).pixelColor(1, 20), QColor(Qt::red));
    for (int i = 0; i < 9; ++i) Drop(11, NewSkin(QString("more%1.png").arg(i)));
    EXPECT_EQ(game.form->SkinCount, 12);  // the ninth met a full slot and no Yes
    EXPECT_EQ(game.dialogs.told, QStringList({kQuestion}));
}

TEST_F(SkinDrop, OnAFullSlotAsksFirst) {
    const QString file = NewSkin("new.png");
    Drop(1, file);
    EXPECT_EQ(game.dialogs.told, QStringList({kQuestion}));
    EXPECT_TRUE(QFile::exists(file));
    EXPECT_EQ(Art(), initial);
    game.dialogs.answer = true;
    Drop(1, file);
    EXPECT_FALSE(QFile::exists(file));
    EXPECT_EQ(Art(), QStringList({"new.png", "test.png", "v.png"}));
    EXPECT_EQ(game.form->skinFile[1], "new.png");
    EXPECT_EQ(game.form->SkinCount, 3);
}

TEST_F(SkinDrop, NamesThatClashGiveWay) {
    const std::tuple<const char*, std::int16_t, QString, QString> cases[] = {
        {"another skin's name", 9, "u.png", "u-2.png"},
        {"and again", 9, "u.png", "u-3.png"},
        {"in another case", 9, "V.PNG", "V-2.PNG"},
        {"that of the skin replaced is free", 1, "u.png", "u.png"},
        {"without an ending", 9, "plain", "plain"},
        {"and again", 9, "plain", "plain-2"},
        {"with percent signs", 9, "a%1%2.png", "a%1%2.png"},
        {"and again", 9, "a%1%2.png", "a%1%2-2.png"},
        {"that would be hidden", 9, ".incoming-a.png", "_incoming-a.png"},
        {"all dots", 9, "...", "_.."},
        {"with the folder's separator", 9, "..\\..\\a.png", "_._.._a.png"},
        {"markup and lines", 1, "<b>\"a'&\n\t$(b);.png", "<b>\"a'&\n\t$(b);.png"},
        {"as long as can be", 1, QString(251, 'a') + ".png", QString(251, 'a') + ".png"},
    };
    game.dialogs.answer = true;
    for (const auto& [what, slot, name, becomes] : cases) {
        const auto filled = static_cast<std::size_t>(Drop(slot, NewSkin(name)));
        EXPECT_EQ(game.form->skinFile[filled], becomes) << what;
        EXPECT_TRUE(Art().contains(becomes)) << what;
    }
    EXPECT_EQ(Art().size(), 10);
}

TEST_F(SkinDrop, RefusesWhatIsNoSkinAndSaysWhy) {
    const QString text = outside.filePath("text.png"), half = outside.filePath("half.png");
    WriteFile(text, "");
    const QByteArray good = ReadFile(NewSkin("good.png"));
    WriteFile(half, good.first(good.size() / 2));
    game.dialogs.answer = true;
    const QString pipe = MakePipe(outside.filePath("pipe.png"));
    for (const QString& file :
         {text, half, pipe, QString("/dev/zero"), outside.filePath("gone.png"), outside.path()}) {
        game.dialogs.told.clear();
        Drop(1, file);
        ASSERT_FALSE(game.dialogs.told.isEmpty());
        EXPECT_TRUE(game.dialogs.told.last().startsWith('"' + QFileInfo(file).fileName() + '"'));
        EXPECT_EQ(Art(), initial);
        EXPECT_EQ(game.form->skinFile[1], "u.png");
    }
    EXPECT_TRUE(QFile::exists(half));
}

TEST_F(SkinDrop, AFileOfTheSkinFolderBecomesTheChoice) {
    EXPECT_EQ(Drop(0, game.folder.filePath("Art/v.png")), 2);
    EXPECT_EQ(game.form->CurrentSkin, 2);
    EXPECT_EQ(Art(), initial);
}

TEST_F(SkinDrop, OfALinkTheFileIsCopiedAndTheLinkGoes) {
    const QString file = NewSkin("target.png");
    const QString link = outside.filePath("link.png");
    QFile::link(file, link);
    Drop(9, link);
    EXPECT_TRUE(QFile::exists(file));
    EXPECT_FALSE(QFileInfo(link).isSymLink());
    EXPECT_FALSE(QFileInfo(game.folder.filePath("Art/link.png")).isSymLink());
}

TEST_F(SkinDrop, ALinkInTheFolderGivesWayWithoutItsTarget) {
    const QString target = NewSkin("target.png"), link = game.folder.filePath("Art/link.png");
    QFile::link(target, link);
    game.Open();
    game.dialogs.answer = true;
    ASSERT_EQ(game.form->skinFile[0], "link.png");
    Drop(0, NewSkin("new.png"));
    EXPECT_FALSE(QFileInfo(link).isSymLink());
    EXPECT_TRUE(QFile::exists(target));
}

TEST_F(SkinDrop, ANameTooLongToMakeFreeLosesNothing) {
    const QString name = QString(251, 'a') + ".png";
    Drop(9, NewSkin(name));
    const QString again = NewSkin(name);
    Drop(9, again);
    EXPECT_EQ(game.dialogs.told.size(), 1);
    EXPECT_TRUE(QFile::exists(again));
    EXPECT_EQ(Art().size(), 4);
}

TEST_F(SkinDrop, OnlyFilesOfThisMachineAreTakenFromADrag) {
    const QString file = NewSkin("new.png");
    const std::pair<QList<QUrl>, bool> drags[] = {
        {{QUrl::fromLocalFile(file), QUrl("https://tesselor.example/x.png")}, true},
        {{QUrl("https://tesselor.example/x.png"), QUrl::fromLocalFile(file)}, false},
        {{}, false},
    };
    for (const auto& [urls, taken] : drags) {
        QMimeData data;
        data.setUrls(urls);
        data.setText("text");
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        enter.ignore();
        QCoreApplication::sendEvent(&game.form->picSkin[5], &enter);
        EXPECT_EQ(enter.isAccepted(), taken);
    }
}

}  // namespace
