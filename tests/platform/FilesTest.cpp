// The program's folder, over the installed copy it grows from, and the sound files in it.

#include <QtEndian>
#include <filesystem>

#include "platform/WaveData.h"
#include "tests/support/Files.h"
#include "tests/support/GameWindow.h"

namespace {

// Does in `root` what each word says: removes a path after a minus, makes a folder before a slash, otherwise
// makes a file that holds the word's first letter.
void Do(const QDir& root, const QString& words) {
    for (const QString& word : words.split(' ', Qt::SkipEmptyParts)) {
        const QString path = root.filePath(word.mid(1));
        root.mkpath(path.left(path.lastIndexOf('/')));
        if (word[0] == '-') QFile::remove(path), QDir(path).removeRecursively();
        if (word[0] != '-' && !word.endsWith('/')) WriteFile(path, word.left(1).toUtf8());
    }
}

// What the user (+) and releases of the program (=) do, and the skins that the next start finds, with
// whose each is.
TEST(InstalledSkins, ComeOnceAndLeaveTheUsersOwn) {
    const QTemporaryDir root;
    const auto start = [&] { return ProgramFolder::OfUser(root.filePath("h/own"), root.filePath("i")); };
    const std::tuple<const char*, const char*, const char*> steps[] = {
        // A file in place of a folder stands for a home that cannot be written, for root too.
        {"no home", "=i/Art/garden.png =i/Art/sea.png =i/Res/rules.txt +h", "garden.png= sea.png="},
        {"one in the way", "-h +h/own/.incoming-sea.png/", "garden.png="},
        {"a home", "-h/own/.incoming-sea.png", "garden.png= sea.png="},
        {"the user's changes", "-h/own/Art/sea.png +h/own/Art/Night.png", "garden.png= Night.png+"},
        {"a release, one name the user's", "=i/Art/night.png =i/Art/glass.png +h/own/Art/Sub/",
         "garden.png= glass.png= Night.png+"},
        {"changed", "-h/own/Art/glass.png +h/own/Art/garden.png", "garden.png+ Night.png+"},
        {"all removed", "-h/own/Art", ""},
    };
    for (const auto& [what, words, expected] : steps) {
        Do(root.path(), words);
        const ProgramFolder folder = start();
        QString skins;
        for (const QString& skin : folder.Files("\\Art\\"))
            skins += skin + ReadFile(folder.Path("\\Art\\" + skin)) + ' ';
        EXPECT_EQ(skins.trimmed(), expected) << what;
    }
    EXPECT_EQ(QDir(root.filePath("h/own")).entryList(QDir::Files | QDir::Hidden),
              QStringList("installed-skins.txt"));
    Do(root.path(), "=i/Res/a.txt +h/own/Res/a.txt +h/own/Art/Sea.PNG +h/own/Art/sea.png");
    for (const auto& [name, path] : {std::pair{"\\art\\sea.png", "h/own/Art/sea.png"},
                                     {"\\Art\\Sea.PNG", "h/own/Art/Sea.PNG"},
                                     {"\\Art\\gone.png", "h/own/Art/gone.png"},
                                     {"\\res\\Rules.txt", "i/Res/rules.txt"},
                                     {"\\array.txt", "h/own/array.txt"},
                                     {"\\Res\\a.txt", "h/own/Res/a.txt"}})
        EXPECT_EQ(start().Path(name), root.filePath(path));
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
                  bits = usually(pick({8, 16}), pick({0, 24})), frame = channels * bits / 8;
        const QByteArray samples(usually(frame * pick({1, 2, 5}), qMax(0, frame - 1)), '\x90');
        const QByteArray format = Number<quint16>(usually(1, 2)) + Number<quint16>(channels) +
                                  Number<quint32>(rate) + Number<quint32>(rate * frame + usually(0, 1)) +
                                  Number<quint16>(frame + usually(0, 1)) + Number<quint16>(bits) + "\0\0";
        const auto others = [&] {
            return Chunk("LIST", QByteArray(pick({0, 3, 4}), 'x')).left(pick({0, 99}));
        };
        const QByteArray behind = others();
        QByteArray data = Chunk(usually("data", "DATA"), samples);
        if (behind.isEmpty()) data.resize(8 + samples.size());
        data.replace(4, 4, Number<quint32>(samples.size() + usually(0, behind.isEmpty() ? 1 : 1000)));
        const QByteArray body = usually("WAVE", "AVI ") + others() +
                                Chunk(usually("fmt ", "FMT "), format.left(usually(pick({16, 18}), 14))) +
                                others() + data + behind;
        const QByteArray more(random() % 5, 'x');
        const qsizetype size = usually(body.size() + usually(0, int(more.size()) + 1), pick({0, 3}));
        QByteArray file = usually("RIFF", "RIFX") + Number<quint32>(size) + body + more;
        const auto read = WaveData::Read(file);
        ASSERT_EQ(read.has_value(), good) << file.toHex().toStdString();
        ASSERT_TRUE(!read || std::tuple(read->rate, read->channels, read->bits, read->samples) ==
                                 std::tuple(rate, channels, bits, samples));
        EXPECT_FALSE(WaveData::Read(file.left(qsizetype(random()) % (8 + body.size()))));
        for (int damage = pick({1, 2, 8}); damage > 0; --damage)
            file[qsizetype(random()) % file.size()] = char(random());
        const auto wave = WaveData::Read(file);  // what is played of a damaged file stands in it
        ASSERT_TRUE(!wave || (wave->rate >= 8000 && wave->rate <= 48000 && !wave->samples.isEmpty() &&
                              wave->samples.size() % (wave->channels * wave->bits / 8) == 0 &&
                              file.contains(wave->samples)));
    }
}

TEST(SoundFiles, AreReadOnceUntilTheyChange) {
    const QTemporaryDir folder;
    const QString path = folder.filePath("a.wav");
    RecordedSounds sounds;
    SoundFiles files(sounds);
    const QByteArray largest(4 << 20, 'x');
    // What is written at which second, and what is played then.
    const std::tuple<const char*, QByteArray, int, QByteArray> steps[] = {
        {"first", "one", 1, "one"},           {"of the same time and size: not read again", "two", 1, "one"},
        {"newer", "two", 2, "two"},           {"longer", "three", 2, "three"},
        {"the largest", largest, 3, largest}, {"too large", largest + 'x', 3, "refused"},
    };
    for (const auto& [what, bytes, second, played] : steps) {
        WriteFile(path, bytes);
        last_write_time(std::filesystem::path(path.toStdString()),
                        std::filesystem::file_time_type(std::chrono::seconds(second)));
        EXPECT_EQ(files.Play(path) ? sounds.heard.last() : "refused", played) << what;
    }
    for (const QString& other : {folder.filePath("none"), folder.path(), MakePipe(folder.filePath("pipe"))})
        EXPECT_FALSE(files.Play(other));
}

}  // namespace
