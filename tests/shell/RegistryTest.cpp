#include <gtest/gtest.h>

#include "tests/support/Files.h"
#include "tests/support/StoreFile.h"

namespace {

using namespace std::chrono_literals;

constexpr std::uint32_t kUser = mdlRegistry::kCurrentUser, kMachine = 0x80000002;
const QString kKey = QStringLiteral("Software\\Tesselor\\Score");

QString Read(const QString& path, const QString& name) {
    return mdlRegistry::ReadRegString(kUser, path, name, QStringLiteral("default"));
}

void Write(const QString& name, const QString& text) {
    mdlRegistry::WriteRegString(kUser, kKey, name, text);
}

TEST(Registry, GivesTheStoredStringOrTheDefault) {
    const StoreFile store(
        "\xEF\xBB\xBF; kept by hand\r\n"
        "[Software\\Tesselor\\Score]\r\n"
        "\"0\"=\"12,345\"\r\n"
        " \"spaced\" = \" a b \" \n"
        "\"empty\"=\"\"\n"
        "\"number\"=dword:0000002a\n"
        "\"cut\"=\"before%0000after\"\n"
        "\"a=b%0022\"=\"=\"\n"
        "\"open\"=\"12\n"
        "\"bad\"=\"100%12\"\n"
        "\"quoted\"=\"a\"b\"\n"
        "\"twice\"=\"first\"\n\"TWICE\"=\"last\"\n"
        "[Software\\Half\n\"0\"=\"lost\"\n");
    const std::tuple<const char*, QString, QString, QString> cases[] = {
        {"a string", kKey, "0", "12,345"},
        {"a path in another case", kKey.toUpper(), "0", "12,345"},
        {"a name in another case", kKey, "EMPTY", ""},
        {"blanks outside the quotes", kKey, "spaced", " a b "},
        {"up to a zero character", kKey, "cut", "before"},
        {"a name with signs in it", kKey, "a=b\"", "="},
        {"twice: the last counts", kKey, "twice", "last"},
        {"a number", kKey, "number", "default"},
        {"never written", kKey, "1", "default"},
        {"no such key", kKey + "s", "0", "default"},
        {"a key above", "Software\\Tesselor", "0", "default"},
        {"no closing quote", kKey, "open", "default"},
        {"a half escape", kKey, "bad", "default"},
        {"a bare quote", kKey, "quoted", "default"},
        {"under a damaged key", "Software\\Half", "0", "default"},
    };
    for (const auto& [what, path, name, expected] : cases) EXPECT_EQ(Read(path, name), expected) << what;
    EXPECT_EQ(mdlRegistry::ReadRegString(kMachine, kKey, "0", "default"), "default");
}

TEST(Registry, GivesBackWhatWasWrittenWhateverItHolds) {
    const QStringList texts{"",
                            " blanks ",
                            "\"quoted\" \\ 100%",
                            "[a]=b;c",
                            "two\r\nlines\t",
                            "Жанна 名前 🂡",
                            QChar(0xD83D) + QString("half")};
    for (const QString& text : texts) {
        SCOPED_TRACE(text.toStdString());
        const StoreFile store;
        const QString path = "Software\\" + text + "]\\x";
        mdlRegistry::WriteRegString(kUser, path, text, text);
        mdlRegistry::WriteRegString(kMachine, path, text, QStringLiteral("refused"));
        EXPECT_EQ(RegistryHive(store.path).String(path, text), text);  // as another process sees it
    }
}

TEST(Registry, ReplacesAValueAndLeavesEveryOtherLineAlone) {
    const StoreFile store("note\n\n[A]\n\"0\"=\"old\"\n\"n\"=dword:1\n\"1\"=\"dam\n\n[B]\n\"0\"=\"b\"");
    mdlRegistry::WriteRegString(kUser, "a", "0", "new");
    mdlRegistry::WriteRegString(kUser, "A", "N", "text");
    mdlRegistry::WriteRegString(kUser, "A", "1", "%");
    mdlRegistry::WriteRegString(kUser, "C\\D", "x", "");
    EXPECT_EQ(store.Bytes(),
              "note\n\n[A]\n\"0\"=\"new\"\n\"N\"=\"text\"\n\"1\"=\"dam\n\"1\"=\"%0025\"\n\n[B]\n\"0\"=\"b\"\n"
              "\n[C\\D]\n\"x\"=\"\"\n");
}

TEST(Registry, IsForItsOwnerAlone) {
    const mode_t before = umask(0);
    for (const QByteArray& old : {QByteArray(), QByteArray("[A]\n")}) {
        const StoreFile store(old);
        EXPECT_EQ(QFile::exists(store.path), !old.isEmpty());  // and everybody's
        Write("0", "text");
        for (const QString& file : {store.path, store.path + ".lock"})
            EXPECT_EQ(QFile::permissions(file) & QFile::Permissions(0x0FF), 0) << file.toStdString();
    }
    umask(before);
}

TEST(Registry, SetsAsideWhatItCannotRead) {
    const std::pair<const char*, std::function<void(const StoreFile&)>> wrecks[] = {
        {"not UTF-8", [](const StoreFile& store) { store.Write("[A]\n\"0\"=\"\xE9\"\n"); }},
        {"ends inside a character", [](const StoreFile& store) { store.Write("[A]\n\"0\"=\"\xC3"); }},
        {"a gigabyte", [](const StoreFile& store) { store.Write("x"), QFile::resize(store.path, 1 << 30); }},
        {"a folder", [](const StoreFile& store) { QDir().mkpath(store.path + "/inside"); }},
        {"a pipe", [](const StoreFile& store) { MakePipe(store.path); }},
        {"a link to a device", [](const StoreFile& store) { QFile::link("/dev/zero", store.path); }},
    };
    for (const auto& [what, wreck] : wrecks) {
        SCOPED_TRACE(what);
        const StoreFile store;
        for (const char* time : {"1", "2"}) {
            QFile::remove(store.path);
            wreck(store);
            const qint64 size = QFileInfo(store.path).size();
            EXPECT_EQ(Read(kKey, "0"), "default");
            Write("0", time);
            EXPECT_EQ(Read(kKey, "0"), time);
            EXPECT_EQ(QFileInfo(store.path + ".unreadable-" + time).size(), size);
        }
        EXPECT_FALSE(QFileInfo::exists(store.path + ".unreadable-3"));
    }
}

TEST(Registry, RefusesATextItCouldNotReadAgain) {
    const StoreFile store;
    Write("0", "short");
    Write("0", QString(1 << 20, 'x'));
    EXPECT_EQ(Read(kKey, "0"), "short");
}

TEST(Registry, AStepReachesTheDiskAtItsEndAndKeepsOthersOut) {
    const StoreFile store;
    Write("0", "before");
    {
        const mdlRegistry::Step step;
        Write("0", "after");
        EXPECT_EQ(Read(kKey, "0"), "after");
        EXPECT_EQ(RegistryHive(store.path).String(kKey, "0"), "before");
        EXPECT_FALSE(FileLock(store.path + ".lock", 5ms).Held());
    }
    EXPECT_EQ(RegistryHive(store.path).String(kKey, "0"), "after");
    EXPECT_TRUE(FileLock(store.path + ".lock", 0ms).Held());
}

}  // namespace
