#include <gtest/gtest.h>

#include "shell/mdlSound.h"
#include "tests/support/Files.h"
#include "tests/support/GameWindow.h"

namespace {

// A game with its sounds remembered. The lock's file is there under a name in other letters.
class Heard : public testing::Test {
protected:
    Heard() {
        mdlSound::Output(&game.sounds);
        QDir(game.folder.path()).mkdir("WAV");
        WriteFile(game.folder.filePath("WAV/SPACE.wav"), "lock");
    }
    ~Heard() override { mdlSound::Output(nullptr); }

    // What was heard since the last call: the numbers of built-in sounds, and "lock".
    QString TakeHeard() {
        QStringList names;
        for (const QByteArray& wave : std::exchange(game.sounds.heard, {})) names.append(Name(wave));
        return names.join(' ');
    }

    GameWindow game;

private:
    static QString Name(const QByteArray& wave) {
        for (std::int16_t number = mdlSound::kFirstSound; number <= mdlSound::kLastSound; ++number)
            if (wave == mdlSound::Wave(number)) return QString::number(number);
        return wave == "lock" ? "lock" : "unknown";
    }
};

TEST_F(Heard, EachEventHasItsSound) {
    const auto lockRow = [this] {
        for (const int cell : {0, 1, 2, 3}) TakeHeard(), game.MoveTo(cell), TakeHeard(), game.Lock();
    };
    const std::tuple<const char*, std::vector<std::int16_t>, std::function<void()>, QString> cases[] = {
        {"a key moves the card", {0}, [&] { game.Key(kKeyUp); }, "104"},
        {"a key at the edge", {0}, [&] { game.Key(kKeyLeft); }, ""},
        {"the mouse moves the card", {0}, [&] { game.MoveTo(5); }, "104"},
        {"a lock", {0, 16, 32}, [&] { game.Lock(); }, "lock lock"},
        {"a lock by the timer", {0}, [&] { game.form->Timer1_Timer(); }, "lock lock"},
        {"an occupied cell", {0, 16, 32}, [&] { game.Lock(), game.Lock(); }, "lock lock 105"},
        {"an eraser", {36, 0, 0}, [&] { game.Lock(); }, "101"},
        {"a line", {0, 3, 6, 9, 16, 32}, lockRow, "lock 108"},
        {"a pause", {0}, [&] { game.RightClick(); }, QString("lock ").repeated(16).trimmed()},
        {"a resume, once for each card",
         {0, 16, 32},
         [&] { game.Lock(), game.LockAt(1), game.RightClick(), TakeHeard(), game.RightClick(); },
         "lock lock"},
        {"a level under the mouse", {0}, [&] { game.form->lblClass_MouseMove(3, 0, 0, 0, 0); }, "103"},
        {"the same level again", {0}, [&] { game.form->lblClass_MouseMove(3, 0, 0, 0, 0); }, ""},
        {"a level chosen", {0}, [&] { game.form->lblClass_Click(0); }, "102"},
        {"a skin chosen", {0}, [&] { game.form->picSkin_MouseUp(0, 0, 0, 0, 0); }, "102"},
        {"a menu button", {0}, [&] { game.form->imgButton_Click(2); }, "111"},
    };
    for (const auto& [what, kinds, act, sounds] : cases) {
        game.PlayKinds(kinds);
        TakeHeard();
        act();
        EXPECT_EQ(TakeHeard(), sounds) << what;
    }
}

TEST_F(Heard, TheBuiltInSoundsAreAllThereAndStayAsTheyAre) {
    const std::array<qsizetype, 12> sizes{3644,  632,   768,   1756,  3768, 10260,
                                          19844, 33656, 27888, 21340, 2344, 1516};
    for (std::int16_t i = 0; i < 12; ++i) {
        const QByteArray& wave = mdlSound::Wave(std::int16_t(101 + i));
        EXPECT_EQ(wave.size(), sizes[std::size_t(i)]) << 101 + i;
        EXPECT_TRUE(mdlSound::PlayWave(wave) && mdlSound::PlayWave(wave));
        EXPECT_EQ(game.sounds.heard.last().constData(), wave.constData()) << "a copy was played";
    }
    mdlSound::Output(nullptr);
    EXPECT_FALSE(mdlSound::PlayWave(mdlSound::Wave(101)));
}

}  // namespace
