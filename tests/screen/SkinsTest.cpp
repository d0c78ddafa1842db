// Which files fill the slots, what becomes of dropped ones, and that none is ever lost.

#include <QBuffer>

#include "tests/support/GameWindow.h"

namespace {

const QUrl kPage("https://a.example");

QByteArray Encoded(QSize size, const char* format = "PNG") {
    QImage image(size, QImage::Format_Mono);
    image.fill(0);
    QBuffer buffer;
    image.save(&buffer, format);
    return buffer.data();
}

struct Skins : testing::Test, GameWindow {
    Skins() {
        for (const char* name : {"u.png", "v.png"}) WriteSkin(Art(name), {40, 30});
        Open(), form->FinishSkinSlots();
    }
    // Drops what `urls` name on a slot; whether it was taken.
    bool Drop(int slot, const QList<QUrl>& urls) {
        return GameWindow::Drop(form->picSkin[std::size_t(slot)], urls);
    }
    bool Drop(int slot, const QString& path) { return Drop(slot, {QUrl::fromLocalFile(path), kPage}); }
    QStringList Files() const { return QDir(Art()).entryList(QDir::Files | QDir::Hidden, QDir::Name); }
    QTemporaryDir outside;
};

TEST_F(Skins, ThatAreNoneTakeNoSlotAndAreRefused) {
    std::vector<std::tuple<QString, QByteArray, QString>> files{
        {"gone.png", {}, "was not found."},
        {"folder.png", {}, "was not found."},
        {"pipe.png", {}, "was not found."},
        {"text.png", "this is no picture", "is not a picture the game can read."},
        {"narrow.png", Encoded({2, 13}), "is 2 x 13 pixels; a skin has 3 x 13 cells"},
        {"low.png", Encoded({3, 12}), "is 3 x 12 pixels; a skin has 3 x 13 cells"},
        {"large.png", Encoded({4002, 4004}), "is 4002 x 4004 pixels; a skin has at most 16 million pixels."},
        {"long.png", {}, "is larger than 64 megabytes, the most a skin may have."},
    };
    std::map<QByteArray, QByteArray> whole{
        {"gif", QByteArray::fromBase64("R0lGODlhAwANAPAAAP8AAAAAACwAAAAAAwANAAACBYSPqctXACH+AzthYgA7")}};
    for (const char* as : {"png", "jpg", "bmp", "ppm", "xbm", "xpm"}) whole[as] = Encoded({300, 1300}, as);
    whole["top-down"] = QByteArray(whole["bmp"]).replace(22, 4, QByteArray::fromHex("ecfaffff"));
    whole["long head"] = QByteArray(whole["jpg"]).insert(2, QByteArray(5000, '\xFF'));
    for (const auto& [format, bytes] : whole)
        files.emplace_back("cut." + format, bytes.chopped(4), "is damaged or incomplete.");
    const auto make = [&files](const QDir& folder) {
        for (const auto& [name, bytes, told] : files) WriteFile(folder.filePath(name), bytes);
        for (const char* none : {"gone.png", "folder.png", "pipe.png"}) QFile::remove(folder.filePath(none));
        QFile::resize(folder.filePath("long.png"), kMostSheetBytes + 1);
        folder.mkdir("folder.png"), MakePipe(folder.filePath("pipe.png"));
    };
    const QStringList before = Files();
    dialogs.answer = true;
    make(outside.path());
    for (const auto& [name, bytes, told] : files) {
        Drop(1, outside.filePath(name));
        EXPECT_TRUE(dialogs.told.value(dialogs.told.size() - 1).startsWith('"' + name + "\" " + told))
            << dialogs.told.join(' ').toStdString();
        EXPECT_EQ(Files(), before);
    }
    EXPECT_TRUE(QFile::exists(outside.filePath("cut.png")));
    for (const auto& [format, bytes] : whole) {
        QString why;
        WriteFile(outside.filePath("whole.svg"), bytes);
        EXPECT_TRUE(PictureSheet::Load(outside.filePath("whole.svg"), why)) << format.toStdString();
    }
    make(Art());
    Open();
    EXPECT_EQ(form->skinFile[0], "cut.bmp");  // listed by its head
    form->FinishSkinSlots();
    EXPECT_EQ(form->skinFile[0] + form->skinFile[2] + form->skinFile[3], "test.pngv.png");
    EXPECT_TRUE(form->picSkin[2].focusPolicy() && !form->picSkin[3].focusPolicy());
    EXPECT_EQ(Model().SetSkinPicture(), "test.png");
    for (const char letter : QByteArray("BaCdegijklm")) WriteSkin(Art(QString("%1.png").arg(letter)));
    Open();  // the first twelve by name, some of them damaged
    EXPECT_EQ(form->skinFile[1] + form->skinFile[11], "B.pngcut.xpm");
}

TEST_F(Skins, TakeTheirTimeWhileTheWindowGoesOn) {
    time.onBackground = [&] {  // another button while the skin is read, and then the end
        time.onBackground = [&] { form->close(); };
        form->imgButton_Click(1);
        form->imgButton_Click(0);
    };
    form->imgButton_Click(0);
    EXPECT_TRUE(form->play == frmGame::Play::Off && random.games == 0);
    time.onBackground = [] {};
    for (const QString& skin : Files()) QFile::remove(Art(skin));
    for (const bool damaged : {false, true}) {
        if (damaged) WriteFile(Art("a.png"), Encoded({300, 1300}).chopped(20));
        Open(), form->FinishSkinSlots();
        EXPECT_TRUE(form->picSkin[0].Contents().drawings.empty() && form->lblSkinName.Caption().isEmpty());
    }
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
        {"without an ending, with percent signs", 9, "a%1%2", 7, "a%1%2"},
        {"and again", 9, "a%1%2", 8, "a%1%2-2"},
        {"two endings", 9, "x.y.png", 9, "x.y.png"},
        {"to fill all slots", 11, "x.y.png", 10, "x.y-2.png"},
        {"that would be hidden", 11, ".incoming-a.png", 11, "_incoming-a.png"},
        {"all dots", 11, "...", 11, "_.."},
        {"with the folder's separator", 11, "..\\..\\a.png", 11, "_._.._a.png"},
        {"markup and lines", 1, "<b>\"a'&\n\t$(b);.png", 1, "<b>\"a'&\n\t$(b);.png"},
        {"as long as can be", 1, longest, 1, longest},
        {"too long to be made free", 0, longest, 1, ""},
    };
    QStringList art = Files();
    for (const auto& [what, slot, name, filled, becomes] : cases) {
        SCOPED_TRACE(what);
        const bool full = slot < form->SkinCount, taken = !becomes.isEmpty();
        const QString replaced = form->skinFile[slot], file = outside.filePath(name);
        WriteSkin(file, {7, 5});
        EXPECT_TRUE(Drop(slot, file));
        if (taken) art.removeOne(replaced), art.append(becomes), art.sort();
        EXPECT_EQ(Files(), art);
        EXPECT_EQ(QFile::exists(file), !taken);
        EXPECT_EQ(dialogs.told.contains("Are You Sure You want To Replace This Skin !"), full);
        EXPECT_EQ(dialogs.told.size(), full + (full && !taken && dialogs.answer));
        EXPECT_EQ(std::tuple(form->CurrentSkin, form->SkinCount), std::tuple(filled, art.size()));
        for (int framed = filled; const int over : {-1, 0, 11, filled}) {  // the red frame follows the mouse
            if (over >= 0) form->picSkin[std::size_t(over)].onMouseMove({});
            if (over >= 0 && over < form->SkinCount) framed = over;
            for (int i = 0; i < 12; ++i)
                EXPECT_EQ(form->picSkin[std::size_t(i)].Contents().Render(1).pixel(1, 20) == 0xFFFF0000,
                          i == framed);
        }
        EXPECT_TRUE(!taken || form->skinFile[filled] == becomes);
        dialogs.answer = true;
    }
}

TEST_F(Skins, OfALinkTheFileIsTakenAndTheLinkGoes) {
    const QString target = outside.filePath("target.png"), link = outside.filePath("link.png");
    WriteSkin(target);
    for (const QString& name : {link, Art("a.png")}) QFile::link(target, name);
    Open();
    dialogs.answer = true;
    Drop(0, link);
    EXPECT_FALSE(QFileInfo(link).isSymLink() || QFileInfo(Art("link.png")).isSymLink());
    EXPECT_TRUE(QFile::exists(target));
    Drop(0, Art("v.png")), QTest::mouseRelease(&form->picSkin[0], Qt::LeftButton, {}, QPoint(-3, 3));
    EXPECT_TRUE(form->CurrentSkin == 3 && dialogs.told.isEmpty() && form->lblSkinName.Caption() == "v");
    EXPECT_FALSE(Drop(5, {kPage, QUrl::fromLocalFile(target)}) || Drop(5, QList<QUrl>()));
    EXPECT_EQ(Files(), QStringList({"link.png", "test.png", "u.png", "v.png"}));
}

}  // namespace
