// A turn and a game on virtual time, where random play does not look closely enough.

#include "shell/mdlSound.h"
#include "tests/support/GameWindow.h"

using namespace std::chrono_literals;

namespace {

constexpr int kJunior = 1, kExpert = 3, kMaster = 4;

TEST(Game, MovesTheTimeBarWithTheLevel) {
    const std::tuple<const char*, int, std::chrono::milliseconds, int> cases[] = {
        {"practice: never", 0, 60s, 0},
        {"junior: two each tick of 196 ms", kJunior, 197ms, 2},
        {"senior: after 117.5 ms, a tie", 2, 117ms, 0},
        {"senior: rounded up", 2, 118ms, 3},
        {"expert: full after 34 ticks, and stays so", kExpert, 3600ms, 100},
        {"master: three each tick of 43 ms", kMaster, 44ms, 3},
    };
    for (const auto& [what, level, pass, value] : cases) {
        GameWindow game;
        game.PlayKinds({0, 16, 32}, level);
        game.Lock();
        game.time.Pass(pass);
        EXPECT_EQ(game.form->prbTime.Value(), value) << what;
        game.RightClick(), game.RightClick();
        EXPECT_EQ(game.form->prbTime.Value(), 0) << what;
        game.time.Pass(pass);
        EXPECT_EQ(game.form->prbTime.Value(), value) << what << ", after a pause";
    }
}

TEST(Game, PauseStopsTimeAndInputAndGivesTheWholeTimeAgain) {
    GameWindow game;
    game.PlayKinds({0, 16, 32, 5}, kMaster);
    game.Lock();
    game.time.Pass(2000ms);
    const auto before = game.time.Now();
    game.Key(80);
    EXPECT_EQ(game.time.Now() - before, 800ms);  // fifty a cell
    for (const int key : {32, 37, 38, 39, 40, 27}) game.Key(key);
    game.MoveTo(3);
    EXPECT_EQ(game.Model().PosCurrentCard(), 12);
    game.Key(80);
    for (const auto& [pass, locked] : {std::pair(2155ms, 1), {1ms, 2}}) {
        game.time.Pass(pass);
        EXPECT_EQ(game.Model().CardsInMatrix(), locked);
    }
    game.form->imgButton_Click(1);
    game.Key(27), game.Lock();
    EXPECT_FALSE(game.ended) << "Escape means nothing on another screen";
    game.Play(), game.Key(27);
    EXPECT_TRUE(game.ended);
}

TEST(Game, MouseMovesOnceIntoACellAndLocksWhereTheCardIs) {
    GameWindow game;
    frmGame& form = *game.form;
    game.PlayKinds({0, 16, 32});
    form.picMat_MouseMove(0, 0, 0, 0, 0);  // the pointer is taken to start in cell 0
    EXPECT_EQ(game.Model().PosCurrentCard(), 12);
    form.picMat_MouseMove(5, 0, 0, 0, 0);
    form.picMat_MouseUp(5, 2, 0, 0, 0);
    EXPECT_EQ(game.Model().CardsInMatrix(), 0);
    form.picMat_MouseUp(5, 1, 0, 0, 0);
    form.picMat_MouseMove(5, 0, 0, 0, 0);  // it rests there: no move
    form.picMat_MouseUp(100, 1, 0, 0, 0);  // any index locks the active card where it is
    form.LockInCell(5);                    // taken
    form.LockInCell(6);
    for (const auto& [cell, kind] : {std::pair(5, 0), {12, 16}, {6, 32}})
        EXPECT_EQ(game.Model().CardAt(static_cast<std::int16_t>(cell)).Number, kind);
}

TEST(Game, MadeUpArgumentsDoNoHarm) {
    GameWindow game;
    game.PlayKinds({0, 16, 32});
    for (const std::int16_t index : std::initializer_list<std::int16_t>{-1, 16, 100, 32767, -32768}) {
        game.form->picMat_MouseMove(index, 0, 0, 0, 0);
        game.form->imgButton_Click(index);
        game.form->imgButton_MouseDown(index, 1, 0, 0, 0);
        game.form->lblClass_Click(index);
        game.form->lblClass_MouseMove(index, 0, 0, 0, 0);
        game.form->picSkin_MouseMove(index, 0, 0, 0, 0);
        game.form->picSkin_MouseUp(index, 1, 0, 0, 0);
    }
    EXPECT_EQ(game.Model().PosCurrentCard(), 12);
    EXPECT_TRUE(game.form->fraScreen[0].Visible());
}

TEST(Game, IsHeardEventByEvent) {
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

}  // namespace
