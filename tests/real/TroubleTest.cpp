// The running game in a system that goes wrong around it: nothing is lost, and it goes on or ends in order.

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <QDir>
#include <QFile>
#include <csignal>

#include "model/CardInfo.h"
#include "tests/real/Player.h"
#include "tests/real/SoundListener.h"
#include "tests/support/Sanitized.h"

namespace {

using namespace std::chrono_literals;

class Trouble : public testing::Test {
protected:
    void Open(const QString& home = {}) {
        player = std::make_unique<Player>(1, home);
        ASSERT_TRUE(player->Window().Found());
        player->Window().Focus();
    }
    void ClickAndSee(const QRect& control) {
        const QImage before = player->Window().Look();
        player->Click(control);
        ASSERT_TRUE(player->AwaitChange(before));
    }
    void StartGame() {
        ClickAndSee(Spot::kPlay);
        ASSERT_TRUE(player->AwaitTurn());
    }
    void LockIn(int cell) {
        player->MoveByKeys(cell);
        const QImage before = player->Window().Look();
        player->Window().Key("space");
        ASSERT_TRUE(player->AwaitChange(before));
        ASSERT_TRUE(player->AwaitTurn());
    }
    qint64 Kilobytes(const char* field) const {
        QFile status(QString("/proc/%1/status").arg(player->Process()));
        if (!status.open(QIODevice::ReadOnly)) return 0;
        const QByteArray text = status.readAll();
        return text.mid(text.indexOf(field) + qsizetype(strlen(field)))
            .trimmed()
            .split(' ')
            .first()
            .toLongLong();
    }
    int OpenFiles() const {
        return int(QDir(QString("/proc/%1/fd").arg(player->Process())).entryList(QDir::AllEntries).size());
    }
    static int LockedCards(const std::array<int, 16>& board) {
        return int(std::count_if(board.begin(), board.end(), [](int kind) { return kind >= 0; }));
    }

    std::unique_ptr<Player> player;
};

// Away for longer than a lock time, as in a laptop that was closed: one card is locked late, and no more.
TEST_F(Trouble, SuspendedWithTheTimerRunning) {
    Open();
    ClickAndSee(Spot::kMenu);
    ClickAndSee(Spot::Level(4));
    StartGame();
    LockIn(5);
    player->MoveByKeys(12);
    const auto board = player->Board();
    kill(pid_t(player->Process()), SIGSTOP);
    const QImage asleep = player->Window().Look();
    EXPECT_FALSE(player->Window().Await([&] { return player->Window().Look() != asleep; }, 5s));
    kill(pid_t(player->Process()), SIGCONT);
    ASSERT_TRUE(player->AwaitChange(asleep));
    ASSERT_TRUE(player->AwaitTurn());
    player->Window().Key("p");
    EXPECT_TRUE(player->Window().Await([&] { return player->IsCovered(); }));
    EXPECT_LE(LockedCards(board), 3);
    EXPECT_EQ(player->Leave(), 0);
}

TEST_F(Trouble, AllFoldersRemovedDuringAGame) {
    const QTemporaryDir home;
    QDir(home.path()).mkdir("Art");
    QFile::copy(TESSELOR_BUILD "/Art/sea.png", home.filePath("Art/sea.png"));
    Open(home.path());
    StartGame();
    LockIn(5);
    QDir(home.path()).removeRecursively();
    QDir(player->Display().Environment().value("XDG_CONFIG_HOME")).removeRecursively();
    LockIn(6);
    player->Click(Spot::kPlay);  // has no skin to load any more, and says so
    const RealWindow box(player->Display().Name(), "Tesselor", &player->Window());
    ASSERT_TRUE(box.Found());
    box.Focus();
    box.Key("Return");
    ASSERT_TRUE(box.AwaitClosed());
    ClickAndSee(Spot::kScore);
    EXPECT_EQ(player->Leave(), 0);
}

// Too little memory for a skin of the largest size: the player is told, and the game goes on.
TEST_F(Trouble, NoMemoryForTheSkin) {
    if (kSanitized) GTEST_SKIP();
    SoundListener listener;  // without it each sound would take memory for a connection and give it back
    ASSERT_TRUE(listener.Start());
    const QTemporaryDir home;
    QDir(home.path()).mkdir("Art");
    QFile::copy(TESSELOR_BUILD "/Art/sea.png", home.filePath("Art/a small one.png"));
    QImage(TESSELOR_BUILD "/Art/sea.png").scaled(1920, 8320).save(home.filePath("Art/large.png"));
    Open(home.path());
    player->EndWindowManager();
    StartGame();
    ClickAndSee(Spot::kMenu);
    ClickAndSee(Spot::Slot(1));
    ASSERT_TRUE(listener.AwaitSoundAndSilence());
    rlimit before{};
    const auto process = pid_t(player->Process());
    const rlimit tight{rlim_t(Kilobytes("VmSize:") + 20'000) * 1024, RLIM_INFINITY};
    ASSERT_EQ(prlimit(process, RLIMIT_AS, &tight, &before), 0);
    player->Click(Spot::kPlay);
    const RealWindow box(player->Display().Name(), "Tesselor", &player->Window());
    ASSERT_TRUE(box.Found());
    prlimit(process, RLIMIT_AS, &before, nullptr);
    box.Focus();
    box.Key("Return");
    ASSERT_TRUE(box.AwaitClosed());
    ClickAndSee(Spot::kMenu);
    ClickAndSee(Spot::Slot(0));
    StartGame();
    EXPECT_EQ(player->Leave(), 0);
}

TEST_F(Trouble, ThousandsOfClicksAtOnce) {
    Open();
    player->EndWindowManager();
    constexpr int clicks = kSanitized ? 200 : 2000;
    const auto burst = [&] {
        for (int click = 0; click < clicks; ++click)
            player->Click(std::array{Spot::kMenu, Spot::Level(4), Spot::kScore, Spot::kMenu, Spot::Level(0),
                                     Spot::kHelp}[std::size_t(click % 6)]);
        player->Click(Spot::kPlay);
        ASSERT_TRUE(player->Window().Await([&] { return player->IsFramed(12); }, 60s));
        ASSERT_TRUE(player->AwaitTurn());
        LockIn(5);
        LockIn(6);
        for (int click = 0; click < clicks; ++click) player->ClickCell(click % 2 == 0 ? 5 : 6);
        player->Window().Key("p");
        ASSERT_TRUE(player->Window().Await([&] { return player->IsCovered(); }));
    };
    burst();  // as much at once takes as much room as before
    const qint64 memory = Kilobytes("VmRSS:");
    const int files = OpenFiles();
    burst();
    const qint64 grown = Kilobytes("VmRSS:") - memory;
    EXPECT_TRUE(kSanitized || grown < memory / 10) << grown;
    EXPECT_LE(OpenFiles(), files + 4);  // one connection for sound more or less
    EXPECT_EQ(player->Leave(), 0);
}

TEST_F(Trouble, TheDisplayIsKilled) {
    Open();
    StartGame();
    const QString store = player->Display().Environment().value("XDG_CONFIG_HOME") + "/Tesselor/store.sqlite";
    const auto bytes = [&] {
        QFile file(store);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    const QByteArray kept = bytes();
    EXPECT_FALSE(kept.isEmpty());
    player->KillDisplay();
    EXPECT_GT(player->AwaitEnd(), 0);  // by itself, and not by a signal
    EXPECT_EQ(bytes(), kept);
}

}  // namespace
