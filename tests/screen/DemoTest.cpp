#include <sys/resource.h>

#include <csignal>

#include "tests/support/GameWindow.h"

namespace {

using namespace std::chrono_literals;

// The points before and after each lock that scored, at practice level: worked out by another program from
// the script.
const std::vector<std::int32_t> kScores{0,     90,    150,   250,   320,   360,   420,   1020,  1110,  1180,
                                        7680,  8180,  8530,  8880,  9180,  9830,  9920,  10000, 10090, 10180,
                                        10830, 13430, 13510, 13600, 13680, 13760, 13850, 13920, 14420, 14470};

TEST(Demo, PlaysTheSameGameWhateverHappensMeanwhile) {
    GameWindow game;
    frmGame& form = *game.form;
    form.show();
    form.lblClass_Click(4);
    std::vector<std::int32_t> scores{0};
    int calls = 0;
    game.time.onProcessEvents = [&] {
        const std::int32_t score = game.Model().Score() / 7;  // the factor of the level
        if (scores.back() != score) scores.push_back(score);
        ++calls;
        if (calls == 1) form.cmdDemo_Click();
        if (calls == 3) form.picSkin_MouseUp(0, 1, 0, 0, 0);
        if (calls % 3 == 0)
            for (const Qt::Key key : {Qt::Key_P, Qt::Key_Up, Qt::Key_Space}) QTest::keyClick(&form, key);
        if (calls == 40) form.imgMinimaize_Click();
    };
    form.cmdDemo_Click();
    EXPECT_EQ(scores, kScores);
    EXPECT_EQ(game.Model().CardsUsed(), 46);
    EXPECT_EQ(game.time.Now(), 174840ms);
    for (int cell = 0; cell < 16; ++cell) {
        EXPECT_EQ(game.Cell(cell).Picture(), game.Card(36));
        EXPECT_FALSE(game.Cell(cell).isEnabled());
    }
    EXPECT_FALSE(form.Timer1.Enabled() || form.Timer2.Enabled());
    game.Lock();
    EXPECT_EQ(game.Model().CardsUsed(), 46) << "played on";
    form.imgButton_Click(0);
    EXPECT_TRUE(game.Cell(12).isEnabled());
}

TEST(Recording, IsAddedToTheFileWholeOrNotAtAll) {
    GameWindow game;
    const QString path = game.folder.filePath("array.txt"),
                  told = "The recording could not be written to %1.";
    std::signal(SIGXFSZ, SIG_IGN);
    const auto print = [&](rlim_t most) {  // on a disk that has no room for a file of more bytes
        const rlimit disk{most, RLIM_INFINITY}, whole{RLIM_INFINITY, RLIM_INFINITY};
        setrlimit(RLIMIT_FSIZE, &disk), game.form->cmdPrint_Click(), setrlimit(RLIMIT_FSIZE, &whole);
        return QFile::exists(path) ? ReadFile(path) : "none";
    };
    EXPECT_EQ(print(RLIM_INFINITY), "none");  // before the first game there is nothing to write
    game.PlayKinds({7, 16, 32});
    for (const int cell : {8, 4}) game.MoveTo(cell);
    const QByteArray once = "ArrDemo(0) = 0\r\nArrDemo(1) = 8\r\nArrDemo(2) = 4\r\nArrDemoCard(0) = 7\r\n";
    EXPECT_EQ(print(RLIM_INFINITY), once);
    EXPECT_EQ(print(RLIM_INFINITY), once + once);
    QFile::remove(path);
    EXPECT_EQ(print(10), "none");
    EXPECT_EQ(game.dialogs.told, QStringList(told.arg(path)));
    Recording full;
    for (int i = 0; i < 40000; ++i) full.Move(static_cast<std::int16_t>(i % 16));
    EXPECT_EQ(full.DemoMoveCount(), 32767);
}

}  // namespace
