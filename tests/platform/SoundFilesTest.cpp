#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>
#include <functional>

#include "platform/SoundFiles.h"
#include "platform/SoundOutput.h"
#include "platform/WaveData.h"

namespace {

// Byte by byte, a sound of four samples at 11025 Hz, 8 bits, one channel.
QByteArray GoodWave() {
    return QByteArray(
        "RIFF\x28\0\0\0WAVE"
        "fmt \x10\0\0\0\1\0\1\0\x11\x2B\0\0\x11\x2B\0\0\1\0\x08\0"
        "data\4\0\0\0\x80\x90\xA0\x80",
        48);
}

TEST(WaveData, ReadsSoundsAndRefusesWhatIsDamaged) {
    using Change = std::function<void(QByteArray&)>;
    const auto put = [](int at, QByteArray bytes) -> Change {
        return [=](QByteArray& wave) { wave.replace(at, bytes.size(), bytes); };
    };
    const auto both = [](Change one, Change other) -> Change {
        return [=](QByteArray& wave) { one(wave), other(wave); };
    };
    // A chunk of `size` bytes at `at`, with the padding it needs, counted in the file's length (0x28 before).
    const auto insert = [&](int at, const char* name, int size) -> Change {
        QByteArray chunk = QByteArray(name, 4) + char(size) + QByteArray(3 + size + size % 2, '\0');
        return [=](QByteArray& wave) { wave.insert(at, chunk), wave[4] = char(0x28 + chunk.size()); };
    };
    struct Case {
        const char* what;
        Change change;
        int samples;  // bytes of them; 0 when the file is refused
    };
    const Case cases[] = {
        {"as it is", [](QByteArray&) {}, 4},
        {"an odd chunk before the format", insert(12, "LIST", 3), 4},
        {"a chunk between", insert(36, "fact", 4), 4},
        {"a chunk behind", insert(48, "PAD ", 6), 4},
        {"bytes behind the end", [](QByteArray& wave) { wave += "more"; }, 4},
        {"8000 Hz", both(put(24, {"\x40\x1F", 2}), put(28, {"\x40\x1F", 2})), 4},
        {"two channels of 16 bits", both(put(22, {"\2", 1}), put(28, {"\x44\xAC\0\0\4\0\x10", 7})), 4},
        {"7999 Hz", both(put(24, {"\x3F\x1F", 2}), put(28, {"\x3F\x1F", 2})), 0},
        {"48001 Hz", both(put(24, {"\x81\xBB", 2}), put(28, {"\x81\xBB", 2})), 0},
        {"three channels", both(put(22, {"\3", 1}), put(28, {"\x33\x81\0\0\3", 5})), 0},
        {"24 bits", put(28, {"\x33\x81\0\0\3\0\x18", 7}), 0},
        {"compressed", put(20, {"\2", 1}), 0},
        {"another byte rate", put(28, {"\x22", 1}), 0},
        {"another frame", put(32, {"\2", 1}), 0},
        {"no channel, no bits, no rate", put(22, QByteArray(14, '\0')), 0},
        {"half a frame", both(put(28, {"\x22\x56\0\0\2\0\x10", 7}), put(40, {"\3", 1})), 0},
        {"no samples", put(40, {"\0", 1}), 0},
        {"another kind of file", put(8, "AVI "), 0},
        {"big-endian", put(0, "RIFX"), 0},
        {"samples beyond the end", put(40, {"\5", 1}), 0},
        {"samples far beyond the end", put(40, "\xFF\xFF\xFF\xFF"), 0},
        {"a file longer than it is", put(4, {"\x29", 1}), 0},
        {"a file that ends before it begins", put(4, {"\0", 1}), 0},
        {"a short format", put(16, {"\x0E", 1}), 0},
        {"no format", put(12, "FMT "), 0},
        {"no data", put(36, "DATA"), 0},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        QByteArray wave = GoodWave();
        c.change(wave);
        const auto read = WaveData::Read(wave);
        EXPECT_EQ(read ? int(read->samples.size()) : 0, c.samples);
    }
    for (int length = 0; length < 48; ++length) EXPECT_FALSE(WaveData::Read(GoodWave().left(length)));
    const auto read = WaveData::Read(GoodWave());
    EXPECT_EQ(std::tuple(read->rate, read->channels, read->bits), std::tuple(11025, 1, 8));
    EXPECT_EQ(read->samples, QByteArray("\x80\x90\xA0\x80"));
}

// Plays what is a sound, and remembers it.
class Recorder final : public SoundOutput {
public:
    bool Play(const QByteArray& wave) override {
        const auto read = WaveData::Read(wave);
        if (read) last = read->samples;
        return read.has_value();
    }
    QByteArray last;
};

TEST(SoundFiles, AreReadOnceUntilTheyChange) {
    const QTemporaryDir folder;
    const QString path = folder.filePath("a.wav");
    const auto write = [&](const QByteArray& bytes, const char* time) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite | QIODevice::Truncate));
        file.write(bytes);
        file.flush();
        file.setFileTime(QDateTime::fromString(time, Qt::ISODate), QFileDevice::FileModificationTime);
    };
    Recorder recorder;
    SoundFiles files(recorder);
    EXPECT_FALSE(files.Play(path)) << "missing";
    write(GoodWave(), "2026-01-01T00:00:00");
    EXPECT_TRUE(files.Play(path));
    EXPECT_EQ(recorder.last, QByteArray("\x80\x90\xA0\x80"));

    QByteArray other = GoodWave();
    other[45] = '\x70';
    write(other, "2026-01-01T00:00:00");
    EXPECT_TRUE(files.Play(path));
    EXPECT_EQ(recorder.last, QByteArray("\x80\x90\xA0\x80")) << "same time and size: not read again";
    write(other, "2026-01-01T00:00:01");
    EXPECT_TRUE(files.Play(path));
    EXPECT_EQ(recorder.last, QByteArray("\x80\x70\xA0\x80")) << "newer";
    write(GoodWave() + '!', "2026-01-01T00:00:01");
    EXPECT_TRUE(files.Play(path));
    EXPECT_EQ(recorder.last, QByteArray("\x80\x90\xA0\x80")) << "longer";

    write(GoodWave().left(47), "2026-01-01T00:00:02");
    EXPECT_FALSE(files.Play(path)) << "truncated";
    write(GoodWave() + QByteArray(SoundFiles::kLargest - 48, '\0'), "2026-01-01T00:00:03");
    EXPECT_TRUE(files.Play(path)) << "just not too large";
    write(GoodWave() + QByteArray(SoundFiles::kLargest - 47, '\0'), "2026-01-01T00:00:04");
    EXPECT_FALSE(files.Play(path)) << "too large";
    QFile::remove(path);
    EXPECT_FALSE(files.Play(path)) << "gone";
    EXPECT_FALSE(files.Play(folder.path())) << "a folder";
}

}  // namespace
