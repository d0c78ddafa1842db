#include <gtest/gtest.h>

#include "shell/mdlSound.h"
#include "tests/support/Files.h"
#include "tests/support/GameWindow.h"

namespace {

// The number of a built-in sound that stays where it is loaded, or what the lock's file holds.
QString Name(const QByteArray& wave) {
    for (int number = 101; number <= 112; ++number)
        if (wave == ReadFile(QString(":/wave/%1.wav").arg(number)))
            return wave.constData() == mdlSound::Wave(std::int16_t(number)).constData()
                       ? QString::number(number)
                       : "copy";
    return wave;
}

TEST(Sounds, EachEventHasItsOwn) {
    GameWindow game;
    mdlSound::Output(&game.sounds);
    QDir(game.folder.path()).mkdir("WAV");
    WriteFile(game.folder.filePath("WAV/SPACE.wav"), "lock");
    const std::tuple<const char*, std::vector<std::int16_t>, std::function<void()>, QString> cases[] = {
        {"a key moves the card", {0}, [&] { game.Key(kKeyUp); }, "104"},
        {"a key at the edge", {0}, [&] { game.Key(kKeyLeft); }, ""},
        {"the mouse moves the card", {0}, [&] { game.MoveTo(5); }, "104"},
        {"a lock", {0, 16, 32}, [&] { game.Lock(); }, "lock lock"},
        {"a lock by the timer", {0}, [&] { game.form->Timer1_Timer(); }, "lock lock"},
        {"an occupied cell", {0, 16, 32}, [&] { game.Lock(), game.Lock(); }, "lock lock 105"},
        {"an eraser", {36, 0, 0}, [&] { game.Lock(); }, "101"},
        {"a line",
         {0, 3, 6, 9, 16, 32},
         [&] {
             for (const int cell : {0, 1, 2, 3}) game.MoveTo(cell), game.sounds.heard.clear(), game.Lock();
         },
         "lock 108"},
        {"a pause", {0}, [&] { game.RightClick(); }, QString("lock ").repeated(16).trimmed()},
        {"a resume, once for each card",
         {0, 16, 32},
         [&] {
             game.Lock(), game.LockAt(1), game.RightClick(), game.sounds.heard.clear(), game.RightClick();
         },
         "lock lock"},
        {"a level under the mouse", {0}, [&] { game.form->lblClass_MouseMove(3, 0, 0, 0, 0); }, "103"},
        {"the same level again", {0}, [&] { game.form->lblClass_MouseMove(3, 0, 0, 0, 0); }, ""},
        {"a level chosen", {0}, [&] { game.form->lblClass_Click(0); }, "102"},
        {"a skin chosen", {0}, [&] { game.form->picSkin_MouseUp(0, 0, 0, 0, 0); }, "102"},
        {"a menu button", {0}, [&] { game.form->imgButton_Click(2); }, "111"},
    };
    for (const auto& [what, kinds, act, sounds] : cases) {
        game.PlayKinds(kinds);
        game.sounds.heard.clear();
        act();
        QStringList heard;
        for (const QByteArray& wave : game.sounds.heard) heard.append(Name(wave));
        EXPECT_EQ(heard.join(' '), sounds) << what;
    }
    mdlSound::Output(nullptr);
    EXPECT_FALSE(mdlSound::PlayWave(mdlSound::Wave(101)));
}

}  // namespace
