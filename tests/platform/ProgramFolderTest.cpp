#include "platform/ProgramFolder.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace {

void Touch(const QString& path) {
    ASSERT_TRUE(QFile(path).open(QIODevice::WriteOnly));
}

TEST(ProgramFolder, FindsNamesWhateverTheirCase) {
    QTemporaryDir root;
    QDir(root.path()).mkpath("art/Sub");
    for (const char* name : {"art/Sea.PNG", "art/sea.png", "art/b.png", "art/A.png"})
        Touch(root.filePath(name));
    const ProgramFolder folder(root.path());
    EXPECT_EQ(folder.Path("\\Art\\sea.png"), root.filePath("art/sea.png"));  // the exact name first
    EXPECT_EQ(folder.Path("\\ART\\B.PNG"), root.filePath("art/b.png"));
    EXPECT_EQ(folder.Path("\\Art\\new.png"), root.filePath("art/new.png"));
    EXPECT_EQ(folder.Path("\\wav\\Space.wav"), root.filePath("wav/Space.wav"));
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

}  // namespace
