// The table of the four best when the game is killed, the disk fails it, or two games end at once.

#include <gtest/gtest.h>

#include <QProcess>
#include <set>

#include "screen/HighScoreTable.h"
#include "tests/faults/Traced.h"
#include "tests/support/StoreFile.h"

namespace {

using Four = std::array<std::string, 4>;

class FaultyStore : public StoreFile {
public:
    // A store with a table of 400, 300, 200 and 100.
    FaultyStore() { Enter({"400", "300", "200", "100"}); }

    void Enter(const QStringList& scores) const {
        EXPECT_EQ(RunProgram(ENTER_SCORES, QStringList(path) + scores), 0);
    }
    // The calls by which entering 250 touches the store's folder.
    [[nodiscard]] QList<Call> Calls() const {
        return CallsTouching(folder.path(), ENTER_SCORES, {path, "250"});
    }
    // Enters 250 with a fault; the exit status, -1 when killed.
    [[nodiscard]] int EnterWithFault(const Call& call, const QString& fault) const {
        return RunWithFault(call, fault, ENTER_SCORES, {path, "250"});
    }

    [[nodiscard]] Four Scores() const {
        Four scores;
        for (int row = 0; row < kHighScores; ++row) {
            const HighScore kept = StoredHighScore(row);
            EXPECT_EQ(kept.name, kept.score) << "row " << row << " is torn";
            scores[std::size_t(row)] = kept.score.toStdString();
        }
        return scores;
    }
};

const Four kBefore{"400", "300", "200", "100"}, kAfter{"400", "300", "250", "200"};

TEST(StoreFaults, KilledAtAnyCallItHoldsTheTableBeforeOrAfter) {
    const QList<Call> calls = FaultyStore().Calls();
    ASSERT_GT(calls.size(), 10);
    std::set<Four> seen;
    for (const Call& call : calls) {
        SCOPED_TRACE(call.name.toStdString() + ' ' + std::to_string(call.number));
        const FaultyStore store;
        EXPECT_EQ(store.EnterWithFault(call, "signal=KILL"), -1);
        const Four scores = store.Scores();
        EXPECT_TRUE(scores == kBefore || scores == kAfter) << store.Bytes().toStdString();
        seen.insert(scores);
        store.Enter({"999"});  // what the killed one left behind is in nobody's way
        EXPECT_EQ(store.Scores()[0], "999");
        EXPECT_FALSE(QFile::exists(store.firstAside));
    }
    EXPECT_EQ(seen.size(), 2u);
}

TEST(StoreFaults, AFailedCallLosesNothing) {
    const std::pair<const char*, const char*> faults[] = {
        {"write", "ENOSPC"},  {"fsync", "EIO"},       {"fdatasync", "EIO"},
        {"rename", "EACCES"}, {"renameat2", "EROFS"}, {"openat", "EACCES"},
        {"fchmod", "EPERM"},  {"flock", "ENOLCK"},    {"read", "EIO"},
    };
    for (const Call& call : FaultyStore().Calls()) {
        const auto* fault = std::find_if(std::begin(faults), std::end(faults),
                                         [&call](const auto& entry) { return call.name == entry.first; });
        if (fault == std::end(faults)) continue;
        SCOPED_TRACE(call.name.toStdString() + ' ' + std::to_string(call.number) + ' ' + fault->second);
        const FaultyStore store;
        const QByteArray before = store.Bytes();
        EXPECT_EQ(store.EnterWithFault(call, QStringLiteral("error=") + fault->second), 0);
        const Four scores = store.Scores();
        const bool setAside = ReadFile(store.firstAside) == before;
        EXPECT_TRUE(setAside || scores == kBefore || scores == kAfter) << store.Bytes().toStdString();
        EXPECT_TRUE(!setAside || call.name == "read" || call.name == "openat");
        store.Enter({"999"});
        EXPECT_EQ(store.Scores()[0], "999");
    }
}

// Two hundred scores that rise, so that each enters the table; a game's own end in its digit.
QStringList RisingScores(int game) {
    QStringList scores;
    for (int i = 1; i <= 200; ++i) scores.append(QString::number(i * 10 + game));
    return scores;
}

TEST(StoreFaults, TwoGamesThatEndAtOnceBothFindTheirRows) {
    const StoreFile store;
    QProcess games[2];
    for (int i = 0; i < 2; ++i) games[i].start(ENTER_SCORES, QStringList(store.path) + RisingScores(i + 1));
    for (QProcess& game : games) {
        EXPECT_TRUE(game.waitForFinished(120000));
        EXPECT_EQ(game.exitCode(), 0);
    }
    const char* const best[] = {"2002", "2001", "1992", "1991"};
    for (int row = 0; row < kHighScores; ++row) {
        EXPECT_EQ(StoredHighScore(row).score, best[row]);
        EXPECT_EQ(StoredHighScore(row).name, best[row]);
    }
}

}  // namespace
