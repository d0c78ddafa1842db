#include <gtest/gtest.h>

#include "shell/mdlSound.h"
#include "tests/support/GameWindow.h"

namespace {

// A game with its sounds remembered. The lock's file is there under a name in other letters.
class Heard : public testing::Test {
protected:
    Heard() {
        mdlSound::Output(&game.sounds);
        QDir(game.folder.path()).mkdir("WAV");
        QFile file(game.folder.filePath("WAV/SPACE.wav"));
        if (file.open(QIODevice::WriteOnly)) file.write("lock");
    }
    ~Heard() override { mdlSound::Output(nullptr); }

    // What was heard since the last call: the numbers of built-in sounds, and "lock".
    QString TakeHeard() {
        QStringList names;
        for (const QByteArray& wave : std::exchange(game.sounds.heard, {})) names.append(Name(wave));
        return names.join(' ');
    }
    // Locks cards at `cells` and listens to the last lock only.
    void LockAll(std::initializer_list<int> cells) {
        for (const int cell : cells) {
            if (game.Model().PosCurrentCard() != cell) game.MoveTo(cell);
            game.sounds.heard.clear();
            game.Lock();
        }
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
    constexpr int kUp = 38, kLeft = 37;
    struct Case {
        const char* what;
        std::initializer_list<std::int16_t> kinds;
        std::function<void()> act;
        QString sounds;
    };
    const std::initializer_list<int> row = {0, 1, 2, 3}, cross = {1, 2, 3, 4, 8, 12, 0};
    const Case cases[] = {
        {"a key moves the card", {0}, [&] { game.Key(kUp); }, "104"},
        {"a key at the edge", {0}, [&] { game.Key(kLeft); }, ""},
        {"four quick keys",
         {0},
         [&] {
             for (int i = 0; i < 4; ++i) game.Key(kUp);
         },
         "104 104 104"},
        {"the mouse moves the card", {0}, [&] { game.MoveTo(5); }, "104"},
        {"a lock", {0, 16, 32}, [&] { LockAll({12}); }, "lock lock"},
        {"a lock by the timer", {0}, [&] { game.form->Timer1_Timer(); }, "lock lock"},
        {"an occupied cell", {0, 16, 32}, [&] { game.Lock(), game.Lock(); }, "lock lock 105"},
        {"an eraser", {36, 0, 0}, [&] { game.Lock(); }, "101"},
        {"one shared element", {0, 7, 5, 3, 16, 32}, [&] { LockAll(row); }, "lock 106"},
        {"two", {0, 6, 3, 3, 16, 32}, [&] { LockAll(row); }, "lock 107"},
        {"three", {0, 3, 6, 9, 16, 32}, [&] { LockAll(row); }, "lock 108"},
        {"four in two lines", {0, 0, 0, 7, 5, 3, 0, 16, 32}, [&] { LockAll(cross); }, "lock 109"},
        {"six in two lines", {0, 0, 0, 0, 0, 0, 0, 16, 32}, [&] { LockAll(cross); }, "lock 110"},
        {"a resume, once for each card",
         {0, 16, 32},
         [&] {
             LockAll({12, 1}), TakeHeard(), game.RightClick(), TakeHeard(), game.RightClick();
         },
         "lock lock"},
        {"a level under the mouse", {0}, [&] { game.form->lblClass_MouseMove(3, 0, 0, 0, 0); }, "103"},
        {"the same level again", {0}, [&] { game.form->lblClass_MouseMove(3, 0, 0, 0, 0); }, ""},
        {"a level chosen", {0}, [&] { game.form->lblClass_Click(0); }, "102"},
        {"a skin chosen", {0}, [&] { game.form->picSkin_MouseUp(0, 0, 0, 0, 0); }, "102"},
        {"a menu button", {0}, [&] { game.form->imgButton_Click(2); }, "111"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        game.PlayKinds(c.kinds);
        TakeHeard();
        c.act();
        EXPECT_EQ(TakeHeard(), c.sounds);
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
