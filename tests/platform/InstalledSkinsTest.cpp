// The user's folder over the installed copy, through releases of the one and changes to the other.

#include <QDir>
#include <QTemporaryDir>

#include "platform/ProgramFolder.h"
#include "tests/support/Files.h"

namespace {

class InstalledSkins : public testing::Test {
protected:
    InstalledSkins() {
        for (const char* folder : {"installed/Art", "installed/Res", "installed/wav"})
            QDir(root.path()).mkpath(folder);
        for (const char* skin : {"garden.png", "sea.png"}) WriteFile(Installed(skin), skin);
    }
    [[nodiscard]] QString Installed(const QString& skin) const {
        return root.filePath("installed/Art/" + skin);
    }
    [[nodiscard]] QString Own(const QString& skin) const { return root.filePath("home/own/Art/" + skin); }
    [[nodiscard]] ProgramFolder Start() const {
        return ProgramFolder::OfUser(root.filePath("home/own"), root.filePath("installed"));
    }
    [[nodiscard]] QStringList Skins() const { return Start().Files("\\Art\\"); }

    QTemporaryDir root;
};

TEST_F(InstalledSkins, ComeOnceAndLaterOnesToo) {
    EXPECT_EQ(Skins(), QStringList({"garden.png", "sea.png"}));
    EXPECT_EQ(ReadFile(Own("sea.png")), "sea.png");
    WriteFile(Own("mine.png"), "mine");
    QFile::remove(Own("sea.png"));
    WriteFile(Own("Night.png"), "mine");
    for (const char* skin : {"night.png", "glass.png"}) WriteFile(Installed(skin), skin);  // a later release
    const QStringList all = {"garden.png", "glass.png", "mine.png", "Night.png"};
    EXPECT_EQ(Skins(), all);
    QFile::remove(Own("glass.png"));
    WriteFile(Own("garden.png"), "mine");
    EXPECT_EQ(Skins(), QStringList({"garden.png", "mine.png", "Night.png"}));
    for (const char* skin : {"garden.png", "mine.png", "Night.png"}) EXPECT_EQ(ReadFile(Own(skin)), "mine");
    EXPECT_EQ(QDir(root.filePath("home/own")).entryList(QDir::Files | QDir::Hidden),
              QStringList("installed-skins.txt"));
}

TEST_F(InstalledSkins, ThatAreAllRemovedStaySo) {
    for (const QString& skin : Skins()) QFile::remove(Own(skin));
    EXPECT_EQ(Skins(), QStringList());
    EXPECT_EQ(Start().Path("\\Art\\sea.png"), Own("sea.png"));
}

// A file in place of a folder stands for a home that cannot be written, for root too.
TEST_F(InstalledSkins, AreUsedInPlaceWhenTheUserCanHaveNone) {
    WriteFile(root.filePath("home"), "");
    EXPECT_EQ(Skins(), QStringList({"garden.png", "sea.png"}));
    EXPECT_EQ(Start().Path("\\Art\\sea.png"), Installed("sea.png"));
    QFile::remove(root.filePath("home"));
    EXPECT_EQ(Skins(), QStringList({"garden.png", "sea.png"}));
    EXPECT_EQ(Start().Path("\\Art\\sea.png"), Own("sea.png"));
}

TEST_F(InstalledSkins, LeaveTheUsersOwnWhenTheyCannotCome) {
    QDir().mkpath(Own(""));
    WriteFile(Own("mine.png"), "mine");
    QDir(root.path()).mkpath("home/own/.incoming-sea.png");  // in the way of one of them
    EXPECT_EQ(Skins(), QStringList({"garden.png", "mine.png"}));
    QDir(root.path()).rmdir("home/own/.incoming-sea.png");
    EXPECT_EQ(Skins(), QStringList({"garden.png", "mine.png", "sea.png"}));
}

TEST_F(InstalledSkins, AreNotTheOnlyThingReadFromTheInstalledCopy) {
    WriteFile(root.filePath("installed/Res/rules.txt"), "");
    const ProgramFolder folder = Start();
    EXPECT_EQ(folder.Path("\\res\\Rules.txt"), root.filePath("installed/Res/rules.txt"));
    EXPECT_EQ(folder.Path("\\array.txt"), root.filePath("home/own/array.txt"));
    QDir(root.path()).mkpath("home/own/Res");
    WriteFile(root.filePath("home/own/Res/rules.txt"), "");
    EXPECT_EQ(folder.Path("\\Res\\rules.txt"), root.filePath("home/own/Res/rules.txt"));
}

}  // namespace
