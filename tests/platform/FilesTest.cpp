// The program's folder, over the installed copy it grows from, and the sound files in it.

#include <QDir>
#include <QTemporaryDir>
#include <QtEndian>
#include <random>

#include "platform/ProgramFolder.h"
#include "platform/SoundFiles.h"
#include "platform/SoundOutput.h"
#include "platform/WaveData.h"
#include "tests/support/Files.h"

namespace {

TEST(ProgramFolder, FindsNamesWhateverTheirCase) {
    const QTemporaryDir root;
    QDir(root.path()).mkpath("art/Sub");
    for (const char* name : {"art/Sea.PNG", "art/sea.png", "art/b.png", "art/A.png"})
        WriteFile(root.filePath(name), "");
    qputenv("TESSELOR_HOME", root.path().toUtf8());
    const ProgramFolder folder = ProgramFolder::Find();
    for (const auto& [name, path] : {std::pair{"\\Art\\sea.png", "art/sea.png"},
                                     {"\\Art\\Sea.PNG", "art/Sea.PNG"},
                                     {"\\ART\\B.PNG", "art/b.png"},
                                     {"\\Art\\new.png", "art/new.png"},
                                     {"\\x", "x"}})
        EXPECT_EQ(folder.Path(name), root.filePath(path));
    EXPECT_EQ(folder.Files("\\Art\\").mid(0, 2), QStringList({"A.png", "b.png"}));
    EXPECT_EQ(folder.Files("\\Art\\").size(), 4);  // files only
    EXPECT_TRUE(folder.Files("\\none\\").isEmpty());
    qunsetenv("TESSELOR_HOME");
    EXPECT_NE(ProgramFolder::Find().Path("\\x"), root.filePath("x"));
}

// What the user and releases of the program do to the two folders, and the skins that the next start finds:
// those of the user with a star.
TEST(InstalledSkins, ComeOnceAndLeaveTheUsersOwn) {
    const QTemporaryDir root;
    const auto in = [&root](const char* name) { return root.filePath(name); };
    const auto start = [&] { return ProgramFolder::OfUser(in("home/own"), in("installed")); };
    for (const char* folder : {"installed/Art", "installed/Res"}) QDir(root.path()).mkpath(folder);
    for (const char* name : {"Art/garden.png", "Art/sea.png", "Res/rules.txt"})
        WriteFile(root.filePath(QString("installed/") + name), "theirs");
    const std::tuple<const char*, std::function<void()>, QStringList> steps[] = {
        // A file in place of a folder stands for a home that cannot be written, for root too.
        {"no home", [&] { WriteFile(in("home"), ""); }, {"garden.png", "sea.png"}},
        {"one in the way",
         [&] {
             EXPECT_EQ(start().Path("\\Art\\sea.png"), in("installed/Art/sea.png"));
             QFile::remove(in("home"));
             QDir(root.path()).mkpath("home/own/.incoming-sea.png");
         },
         {"garden.png"}},
        {"a home", [&] { QDir(root.path()).rmdir("home/own/.incoming-sea.png"); }, {"garden.png", "sea.png"}},
        {"removed and added by the user",
         [&] { QFile::remove(in("home/own/Art/sea.png")), WriteFile(in("home/own/Art/Night.png"), "*"); },
         {"garden.png", "Night.png*"}},
        {"a new release, with a name of the user's",
         [&] {
             WriteFile(in("installed/Art/night.png"), "."), WriteFile(in("installed/Art/glass.png"), ".");
         },
         {"garden.png", "glass.png", "Night.png*"}},
        {"changed by the user",
         [&] { QFile::remove(in("home/own/Art/glass.png")), WriteFile(in("home/own/Art/garden.png"), "*"); },
         {"garden.png*", "Night.png*"}},
        {"all removed", [&] { QDir(in("home/own/Art")).removeRecursively(); }, {}},
    };
    for (const auto& [what, change, expected] : steps) {
        change();
        QStringList skins = start().Files("\\Art\\");
        for (QString& skin : skins)
            if (ReadFile(start().Path("\\Art\\" + skin)) == "*") skin += '*';
        EXPECT_EQ(skins, expected) << what;
    }
    EXPECT_EQ(QDir(in("home/own")).entryList(QDir::Files | QDir::Hidden), QStringList("installed-skins.txt"));
    EXPECT_EQ(start().Path("\\Art\\sea.png"), in("home/own/Art/sea.png"));
    EXPECT_EQ(start().Path("\\res\\Rules.txt"), in("installed/Res/rules.txt"));
    EXPECT_EQ(start().Path("\\array.txt"), in("home/own/array.txt"));
    QDir(root.path()).mkpath("home/own/Res");
    WriteFile(in("home/own/Res/rules.txt"), "");
    EXPECT_EQ(start().Path("\\Res\\rules.txt"), in("home/own/Res/rules.txt"));
}

template <class T>
QByteArray Number(qsizetype number) {
    const T bytes = qToLittleEndian(static_cast<T>(number));
    return {reinterpret_cast<const char*>(&bytes), sizeof bytes};
}

// A chunk of a file, with the padding that an odd one needs before another.
QByteArray Chunk(const QByteArray& name, const QByteArray& bytes) {
    return name + Number<quint32>(bytes.size()) + bytes + QByteArray(bytes.size() % 2, '\0');
}

TEST(WaveData, ReadsPlainSoundsAndRefusesEverythingElse) {
    std::mt19937 random(20261125);
    const auto pick = [&random](std::vector<int> of) { return of[random() % of.size()]; };
    for (int i = 0; i < 50'000; ++i) {
        bool good = true;
        // What is right; once in forty times what makes the file a bad one.
        const auto usually = [&](auto right, auto wrong) -> decltype(right) {
            if (random() % 40 != 0) return right;
            good = false;
            return wrong;
        };
        const int rate = usually(pick({8000, 11025, 48000}), pick({0, 7999, 48001}));
        const int channels = usually(pick({1, 2}), pick({0, 3})),
                  bits = usually(pick({8, 16}), pick({0, 24}));
        const int frame = channels * bits / 8;
        const QByteArray samples(usually(frame * pick({1, 2, 5}), qMax(0, frame - 1)), '\x90');
        const QByteArray format = Number<quint16>(usually(1, 2)) + Number<quint16>(channels) +
                                  Number<quint32>(rate) + Number<quint32>(rate * frame + usually(0, 1)) +
                                  Number<quint16>(frame + usually(0, 1)) + Number<quint16>(bits) + "\0\0";
        const auto others = [&] {
            return random() % 2 ? Chunk("LIST", QByteArray(pick({0, 3, 4}), 'x')) : QByteArray();
        };
        const QByteArray behind = others();
        QByteArray data = Chunk(usually("data", "DATA"), samples);
        if (behind.isEmpty()) data.resize(8 + samples.size());
        data.replace(4, 4, Number<quint32>(samples.size() + usually(0, behind.isEmpty() ? 1 : 1000)));
        const QByteArray body = usually("WAVE", "AVI ") + others() +
                                Chunk(usually("fmt ", "FMT "), format.left(usually(pick({16, 18}), 14))) +
                                others() + data + behind;
        const QByteArray more(random() % 5, 'x');
        const qsizetype size = body.size() + usually(0, int(more.size()) + 1);
        const QByteArray whole =
            usually("RIFF", "RIFX") + Number<quint32>(usually(size, pick({0, 3}))) + body;
        const auto read = WaveData::Read(whole + more);
        ASSERT_EQ(read.has_value(), good) << whole.toHex().toStdString();
        EXPECT_FALSE(WaveData::Read(whole.left(qsizetype(random()) % whole.size())));
        if (!read) continue;
        ASSERT_EQ(std::tuple(read->rate, read->channels, read->bits), std::tuple(rate, channels, bits));
        ASSERT_EQ(read->samples, samples);
    }
}

struct Recorder final : SoundOutput {
    bool Play(const QByteArray& wave) override { return heard = wave, true; }
    QByteArray heard;
};

TEST(SoundFiles, AreReadOnceUntilTheyChange) {
    const QTemporaryDir folder;
    const QString path = folder.filePath("a.wav");
    Recorder recorder;
    SoundFiles files(recorder);
    const QByteArray largest(4 << 20, 'x');
    // What is written at which second, and what is played then.
    const std::tuple<const char*, QByteArray, int, QByteArray> steps[] = {
        {"first", "one", 1, "one"},           {"of the same time and size: not read again", "two", 1, "one"},
        {"newer", "two", 2, "two"},           {"longer", "three", 2, "three"},
        {"the largest", largest, 3, largest}, {"too large", largest + 'x', 3, "refused"},
    };
    for (const auto& [what, bytes, second, played] : steps) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite | QIODevice::Truncate));
        file.write(bytes);
        file.flush();
        file.setFileTime(QDateTime::fromSecsSinceEpoch(second), QFileDevice::FileModificationTime);
        EXPECT_EQ(files.Play(path) ? recorder.heard : "refused", played) << what;
    }
    for (const QString& other :
         {folder.filePath("none.wav"), folder.path(), MakePipe(folder.filePath("pipe.wav"))})
        EXPECT_FALSE(files.Play(other));
}

}  // namespace
