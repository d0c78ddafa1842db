#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>
#include <map>

#include "platform/SoundFiles.h"
#include "platform/SoundOutput.h"
#include "platform/WaveData.h"
#include "tests/support/Files.h"

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
    // Bytes put over others; the count of sample bytes then read, 0 when the file is refused.
    const std::tuple<const char*, std::map<int, QByteArray>, int> changes[] = {
        {"as it is", {}, 4},
        {"8000 Hz", {{24, {"\x40\x1F", 2}}, {28, {"\x40\x1F", 2}}}, 4},
        {"7999 Hz", {{24, {"\x3F\x1F", 2}}, {28, {"\x3F\x1F", 2}}}, 0},
        {"48001 Hz", {{24, {"\x81\xBB", 2}}, {28, {"\x81\xBB", 2}}}, 0},
        {"two channels of 16 bits", {{22, "\2"}, {28, {"\x44\xAC\0\0\4\0\x10", 7}}}, 4},
        {"three channels", {{22, "\3"}, {28, {"\x33\x81\0\0\3", 5}}, {40, "\3"}}, 0},
        {"24 bits", {{28, {"\x33\x81\0\0\3\0\x18", 7}}, {40, "\3"}}, 0},
        {"compressed", {{20, "\2"}}, 0},
        {"another byte rate", {{28, "\x22"}}, 0},
        {"another frame", {{32, "\2"}}, 0},
        {"no channel, no bits, no rate", {{22, QByteArray(14, '\0')}}, 0},
        {"half a frame", {{28, {"\x22\x56\0\0\2\0\x10", 7}}, {40, "\3"}}, 0},
        {"no samples", {{40, {"\0", 1}}}, 0},
        {"another kind of file", {{8, "AVI "}}, 0},
        {"big-endian", {{0, "RIFX"}}, 0},
        {"samples beyond the end", {{40, "\5"}}, 0},
        {"samples far beyond the end", {{40, "\xFF\xFF\xFF\xFF"}}, 0},
        {"a file longer than it is", {{4, "\x29"}}, 0},
        {"a file that ends before it begins", {{4, {"\0", 1}}}, 0},
        {"a short format", {{16, "\x0E"}}, 0},
        {"no format", {{12, "FMT "}}, 0},
        {"no data", {{36, "DATA"}}, 0},
    };
    for (const auto& [what, parts, samples] : changes) {
        QByteArray wave = GoodWave();
        for (const auto& [at, bytes] : parts) wave.replace(at, bytes.size(), bytes);
        const auto read = WaveData::Read(wave);
        EXPECT_EQ(read ? int(read->samples.size()) : 0, samples) << what;
    }
    for (int length = 0; length < 48; ++length) EXPECT_FALSE(WaveData::Read(GoodWave().left(length)));
}

TEST(WaveData, TakesNoNoticeOfOtherChunks) {
    // Before the format, between, behind; one of them odd, with the padding it needs; and bytes behind the
    // end.
    for (const auto& [at, size] : {std::pair{12, 3}, {36, 4}, {48, 6}}) {
        const QByteArray chunk = QByteArray("LIST") + char(size) + QByteArray(3 + size + size % 2, '\0');
        QByteArray wave = GoodWave().insert(at, chunk) + "more";
        wave[4] = char(0x28 + chunk.size());
        const auto read = WaveData::Read(wave);
        ASSERT_TRUE(read) << at;
        EXPECT_EQ(std::tuple(read->rate, read->channels, read->bits), std::tuple(11025, 1, 8));
        EXPECT_EQ(read->samples, QByteArray("\x80\x90\xA0\x80"));
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
    const auto write = [&](const QByteArray& bytes, int second) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite | QIODevice::Truncate));
        file.write(bytes);
        file.flush();
        file.setFileTime(QDateTime::fromSecsSinceEpoch(second), QFileDevice::FileModificationTime);
    };
    const auto played = [&] { return files.Play(path) ? recorder.heard : QByteArray("refused"); };
    EXPECT_EQ(played(), "refused") << "missing";
    write("one", 1);
    EXPECT_EQ(played(), "one");
    write("two", 1);
    EXPECT_EQ(played(), "one") << "same time and size: not read again";
    write("two", 2);
    EXPECT_EQ(played(), "two") << "newer";
    write("three", 2);
    EXPECT_EQ(played(), "three") << "longer";
    for (const qint64 size : {SoundFiles::kLargest, SoundFiles::kLargest + 1}) {
        write(QByteArray(size, 'x'), 3);
        EXPECT_EQ(files.Play(path), size == SoundFiles::kLargest);
    }
    QFile::remove(path);
    EXPECT_EQ(played(), "refused") << "gone";
    EXPECT_FALSE(files.Play(folder.path())) << "a folder";
    EXPECT_FALSE(files.Play(MakePipe(folder.filePath("pipe.wav"))));
}

}  // namespace
