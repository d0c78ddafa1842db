#include <gtest/gtest.h>

#include "shell/mdlSound.h"
#include "tests/support/Files.h"
#include "tests/support/GameWindow.h"

TEST(Sounds, EachEventHasItsOwn) {
    GameWindow game;
    frmGame& form = *game.form;
    QList<QByteArray>& heard = game.sounds.heard;
    mdlSound::Output(&game.sounds);
    QDir(game.folder.path()).mkdir("WAV");
    WriteFile(game.folder.filePath("WAV/SPACE.wav"), "lock");
    const auto two = [&] { game.Lock(), game.LockAt(13), heard.clear(); };
    const std::tuple<const char*, std::vector<std::int16_t>, std::function<void()>, QString> cases[] = {
        {"a key moves the card", {0}, [&] { game.Key(kKeyUp); }, "104"},
        {"a key at the edge", {0}, [&] { game.Key(kKeyLeft); }, ""},
        {"the mouse moves the card", {0}, [&] { game.MoveTo(5); }, "104"},
        {"a lock, then an occupied cell", {0, 16}, [&] { game.Lock(), game.Lock(); }, "lock lock 105"},
        {"a lock by the timer", {0}, [&] { form.Timer1_Timer(); }, "lock lock"},
        {"an eraser", {36, 0, 0}, [&] { game.Lock(); }, "101"},
        {"a line",
         {0, 3, 6, 9},
         [&] { two(), game.LockAt(14), game.LockAt(15); },
         "104 lock lock 104 lock 108"},
        {"a pause", {0}, [&] { game.RightClick(); }, QString("lock ").repeated(16).trimmed()},
        {"a resume",
         {0, 16},
         [&] { two(), game.RightClick(), heard.clear(), game.RightClick(); },
         "lock lock"},
        {"a level under the mouse", {0}, [&] { form.lblClass_MouseMove(3, 0, 0, 0, 0); }, "103"},
        {"the same level again", {0}, [&] { form.lblClass_MouseMove(3, 0, 0, 0, 0); }, ""},
        {"a level chosen", {0}, [&] { form.lblClass_Click(0); }, "102"},
        {"a skin chosen", {0}, [&] { form.picSkin_MouseUp(0, 0, 0, 0, 0); }, "102"},
        {"a menu button", {0}, [&] { form.imgButton_Click(2); }, "111"}};
    for (const auto& [what, kinds, act, sounds] : cases) {
        game.PlayKinds(kinds);
        heard.clear();
        act();
        for (QByteArray& wave : heard)
            for (std::int16_t number = 101; number <= 112; ++number)  // what is built in stays where it is
                if (wave.constData() == mdlSound::Wave(number).constData()) wave = QByteArray::number(number);
        EXPECT_EQ(heard.join(' '), sounds) << what;
    }
    mdlSound::Output(nullptr);
    EXPECT_FALSE(mdlSound::PlayWave(mdlSound::Wave(101)));
}
