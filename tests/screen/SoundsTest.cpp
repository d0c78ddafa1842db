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
    const std::tuple<const char*, std::function<void()>, QString> cases[] = {
        {"the mouse moves the card", [&] { game.MoveTo(5); }, "104"},
        {"a lock, then an occupied cell", [&] { game.Lock(), game.Lock(); }, "lock lock 105"},
        {"a pause", [&] { game.RightClick(); }, QString("lock ").repeated(16).trimmed()},
        {"a resume", [&] { game.Lock(), game.RightClick(), heard.clear(), game.RightClick(); }, "lock"},
        {"a level under the mouse", [&] { form.lblClass_MouseMove(3, 0, 0, 0, 0); }, "103"},
        {"the same level again", [&] { form.lblClass_MouseMove(3, 0, 0, 0, 0); }, ""},
        {"a level chosen", [&] { form.lblClass_Click(0); }, "102"},
        {"a skin chosen", [&] { form.picSkin_MouseUp(0, 0, 0, 0, 0); }, "102"},
        {"a menu button", [&] { form.imgButton_Click(2); }, "111"}};
    for (const auto& [what, act, sounds] : cases) {
        game.PlayKinds({0, 16});
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
