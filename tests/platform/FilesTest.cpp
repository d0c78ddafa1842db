// The program's folder, over the installed copy it grows from, and the sound files in it.

#include <QtEndian>
#include <filesystem>

#include "platform/sound/WaveData.h"
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
                                     {"\\res\\Rules.txt", "i/Res/rules.txt"},
                                     {"\\Res\\a.txt", "h/own/Res/a.txt"}})
        EXPECT_EQ(start().Path(name), root.filePath(path));
}

template <class T>
QByteArray Number(qsizetype number) {
    const T bytes = qToLittleEndian(static_cast<T>(number));
    return {reinterpret_cast<const char*>(&bytes), sizeof bytes};
}

const QByteArray kSamples("\x90\x7F\0\x81\x80\x80\xFF\x80\0\1\2\3", 12);

// A sound file with `more` before, between and behind the chunks that count.
QByteArray Wave(int rate, int channels, int bits, const QByteArray& more = {}) {
    const int frame = channels * bits / 8;
    const QByteArray format = Number<quint16>(1) + Number<quint16>(channels) + Number<quint32>(rate) +
                              Number<quint32>(rate * frame) + Number<quint16>(frame) + Number<quint16>(bits);
    const QByteArray body = "WAVE" + more + "fmt " + Number<quint32>(16) + format + more + "data" +
                            Number<quint32>(12) + kSamples + more;
    return "RIFF" + Number<quint32>(body.size()) + body + "behind";
}

TEST(WaveData, ReadsPlainSoundsAndRefusesEverythingElse) {
    const QByteArray odd = "LIST" + Number<quint32>(3) + QByteArray(4, 'x'), plain = Wave(8000, 2, 16);
    for (int kind = 0; kind < 16; ++kind) {
        const std::tuple sound(kind & 1 ? 8000 : 48000, kind & 2 ? 1 : 2, kind & 4 ? 8 : 16, kSamples);
        const auto& [rate, channels, bits, samples] = sound;
        const auto read = WaveData::Read(Wave(rate, channels, bits, kind & 8 ? odd : ""));
        ASSERT_TRUE(read) << kind;
        EXPECT_EQ(std::tuple(read->rate, read->channels, read->bits, read->samples), sound);
    }
    QList<QByteArray> bad{plain.first(54), QByteArray(plain).replace(4, 1, "\3"),
                          QByteArray(plain).replace(40, 1, QByteArray(1, '\0'))};
    for (const int rate : {7999, 48001}) bad += Wave(rate, 1, 8);
    for (const int channels : {0, 3}) bad += Wave(8000, channels, 8);
    for (const int bits : {0, 24}) bad += Wave(8000, 1, bits);
    for (int at = 0; at < 44; ++at)
        for (const int change : {-1, 1})
            if (at != 4 || change < 0) bad.append(plain), bad.last()[at] = char(plain[at] + change);
    for (const QByteArray& file : bad) EXPECT_FALSE(WaveData::Read(file)) << file.toHex().toStdString();
    std::mt19937 random(20261125);
    for (int i = 0; i < 50'000; ++i) {
        QByteArray file = Wave(8000, 1, 8, odd);
        file.replace(4, 4, Number<quint32>(file.size() - 15));  // its last chunk lacks the padding
        for (unsigned damage = random() % 8; damage > 0; --damage)
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
