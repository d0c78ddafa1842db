#include "platform/ProgramFolder.h"

#include <QDir>
#include <QTemporaryDir>

#include "tests/support/Files.h"

TEST(ProgramFolder, FindsNamesWhateverTheirCase) {
    QTemporaryDir root;
    QDir(root.path()).mkpath("art/Sub");
    for (const char* name : {"art/Sea.PNG", "art/sea.png", "art/b.png", "art/A.png"})
        WriteFile(root.filePath(name), "");
    const ProgramFolder folder(root.path());
    for (const char* exact : {"sea.png", "Sea.PNG"})
        EXPECT_EQ(folder.Path(QString("\\Art\\") + exact), root.filePath(QString("art/") + exact));
    EXPECT_EQ(folder.Path("\\ART\\B.PNG"), root.filePath("art/b.png"));
    EXPECT_EQ(folder.Path("\\Art\\new.png"), root.filePath("art/new.png"));
    EXPECT_EQ(folder.Files("\\Art\\").mid(0, 2), QStringList({"A.png", "b.png"}));
    EXPECT_EQ(folder.Files("\\Art\\").size(), 4);  // files only
    EXPECT_TRUE(folder.Files("\\none\\").isEmpty());
}

TEST(ProgramFolder, CanBeNamedByTheEnvironment) {
    QTemporaryDir root;
    qputenv("TESSELOR_HOME", root.path().toUtf8());
    EXPECT_EQ(ProgramFolder::Find().Path("\\x"), root.filePath("x"));
    qunsetenv("TESSELOR_HOME");
    EXPECT_NE(ProgramFolder::Find().Path("\\x"), root.filePath("x"));
}
