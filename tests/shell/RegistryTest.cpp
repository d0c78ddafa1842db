#include <gtest/gtest.h>

#include <sqlite3.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QElapsedTimer>
#include <csignal>
#include <random>

#include "screen/HighScoreTable.h"
#include "tests/support/Files.h"
#include "tests/support/StoreFile.h"

namespace {

constexpr std::uint32_t kUser = mdlRegistry::kCurrentUser, kMachine = 0x80000002;
const QString kKey = QStringLiteral("Software\\Tesselor\\Score");
const StoreFile::Value kBefore{kKey, "0", "before"};

QString Read(const QString& name, std::uint32_t root = kUser, const QString& path = kKey) {
    return mdlRegistry::ReadRegString(root, path, name, QStringLiteral("default"));
}

void Write(const QString& name, const QString& text, std::uint32_t root = kUser) {
    mdlRegistry::WriteRegString(root, kKey, name, text);
}

// Stands for our table, and gives rows for ever.
constexpr const char* kEndless =
    "CREATE VIEW strings AS WITH r AS (SELECT '' path, '' name, '' value UNION ALL SELECT * FROM r) SELECT * "
    "FROM r";

// Another program at the database `file`, which it makes when it is missing.
std::shared_ptr<sqlite3> Sql(const QString& file, const char* statements) {
    sqlite3* database = nullptr;
    sqlite3_open(QFile::encodeName(file).constData(), &database);
    EXPECT_EQ(sqlite3_exec(database, statements, nullptr, nullptr, nullptr), SQLITE_OK);
    return {database, sqlite3_close};
}

TEST(Registry, GivesTheStoredTextOrTheDefault) {
    const StoreFile store({{kKey, "0", "12,345"}, {kKey, "ünder", "b"}, {kKey.toLower(), "empty", ""}});
    Write("Ünder", "a");
    Write("cut", QStringLiteral("before\0after"));
    Write("0", "refused", kMachine);
    Sql(store.path, "INSERT INTO strings VALUES('software\\tesselor\\score', 'number', 42)");
    const QString found = Read("0") + Read("ÜNDER") + Read("Empty") + Read("cut");
    EXPECT_EQ(found, "12,345abefore");
    StringStore(store.folder.filePath("new/one")).SetString(kKey, "0", "text");
    EXPECT_TRUE(QFile::exists(store.folder.filePath("new/one")));
    EXPECT_TRUE(QFile::link(store.path, store.folder.filePath("link")));
    EXPECT_EQ(StringStore(store.folder.filePath("link")).String(kKey, "0"), "12,345");
    const QString missing[] = {Read("1"), Read("number"), Read("0", kMachine), Read("0", kUser, kKey + "s")};
    for (const QString& text : missing) EXPECT_EQ(text, "default");
    Write("number", "text");
    EXPECT_EQ(Read("number"), "text");
}

TEST(Registry, KeepsAnyTextForItsOwnerAlone) {
    const mode_t before = umask(0);
    StoreFile store;
    umask(before);
    for (const QStringView text :
         {u"'; \" % [a]=b \r\n\t", u"Жанна 名前 🂡", u"\xD83D half", u"\xFEFF mark", u"\xFFFE mark"}) {
        store.hive.SetString(text.toString(), text.toString(), text.toString());
        EXPECT_EQ(StringStore(store.path).String(text.toString(), text.toString()), text);
    }
    const mdlRegistry::Step step;
    Write("0", "text");
    for (const char* file : {"", "-journal"})
        EXPECT_EQ(QFile::permissions(store.path + file) & 0xFFF, 0x600) << file;
}

// What a name stands for: the entry itself, and what a small file holds.
std::pair<ino_t, QByteArray> Entry(const QString& path) {
    struct stat found {};
    lstat(QFile::encodeName(path).constData(), &found);
    return {found.st_ino, S_ISREG(found.st_mode) && found.st_size < 10'000 ? ReadFile(path) : QByteArray()};
}

TEST(Registry, SetsAsideWhatItCannotRead) {
    static const QByteArray whole = StoreFile({kBefore}).Bytes();
    using Path = const QString&;
    const std::pair<const char*, void (*)(Path)> wrecks[] = {
        {"a text", [](Path path) { WriteFile(path, "[A]\n"); }},
        {"damaged", [](Path path) { WriteFile(path, whole.first(4096) + QByteArray(4096, 'x')); }},
        {"cut off", [](Path path) { WriteFile(path, whole.first(4096)); }},
        {"gigabytes", [](Path path) { WriteFile(path, whole), QFile::resize(path, 1LL << 33); }},
        {"another's", [](Path path) { Sql(path, "CREATE TABLE other(x)"); }},
        {"never ends", [](Path path) { Sql(path, kEndless); }},
        {"a folder, a journal", [](Path path) { QDir().mkpath(path), WriteFile(path + "-journal", "j"); }},
        {"a pipe", [](Path path) { MakePipe(path); }},
        {"a pipe as journal", [](Path path) { WriteFile(path, whole), MakePipe(path + "-journal"); }},
        {"a link to a device", [](Path path) { QFile::link("/dev/zero", path); }},
        {"a link to nothing", [](Path path) { QFile::link("/nowhere", path); }},
    };
    for (const auto& [what, wreck] : wrecks) {
        SCOPED_TRACE(what);
        const StoreFile store;
        for (const char* time : {"1", "2"}) {
            QFile::remove(store.path);
            wreck(store.path);
            const auto before = Entry(store.path), journal = Entry(store.path + "-journal");
            EXPECT_EQ(Read("0"), "default");
            Write("0", time);
            EXPECT_EQ(Read("0"), time);
            const QString aside = store.path + ".unreadable-" + time;
            EXPECT_TRUE(Entry(aside) == before && Entry(aside + "-journal") == journal);
        }
        EXPECT_FALSE(QFile::exists(store.path + ".unreadable-3"));
    }
}

TEST(Registry, AFailureLeavesTheStoreAsItWas) {
    const StoreFile store({kBefore});
    const auto limitFiles = [](rlim_t bytes) {
        const rlimit limit{bytes, RLIM_INFINITY};
        setrlimit(RLIMIT_FSIZE, &limit);
    };
    signal(SIGXFSZ, SIG_IGN);
    for (const bool diskIsFull : {true, false}) {
        std::optional<mdlRegistry::Step> step(std::in_place);
        Write("0", "after");
        EXPECT_EQ(Read("0"), "after");
        EXPECT_EQ(StringStore(store.path).String(kKey, "0"), "before");
        if (diskIsFull) limitFiles(0);
        if (!diskIsFull) Write("1", QString(1 << 20, 'x'));  // more than a store may hold
        Write("2", "after");
        step.reset();
        limitFiles(RLIM_INFINITY);
        EXPECT_EQ(Read("0") + Read("1") + Read("2"), "beforedefaultdefault");
    }
    Write("0", "after");
    EXPECT_EQ(Read("0"), "after");
}

TEST(Registry, WaitsButOnceForAProcessThatHangs) {
    const StoreFile store({kBefore});
    for (const auto& [hangs, read] :
         {std::pair("BEGIN IMMEDIATE", "before"), {"BEGIN EXCLUSIVE", "default"}}) {
        const auto other = Sql(store.path, hangs);
        const mdlRegistry::Step step;
        Write("0", "after");
        for (int time = 0; time < 1000; ++time) ASSERT_EQ(Read("0"), read);  // would each take seconds
        Write("0", "after");
    }
    EXPECT_EQ(Read("0"), "before");
    EXPECT_FALSE(QFile::exists(store.path + ".unreadable-1"));
}

// Enters the scores first, first + 10 and so on in a process of its own.
pid_t Play(int first, int last = INT_MAX - 10) {
    if (const pid_t child = fork(); child != 0) return child;
    for (int score = first; score <= last; score += 10) {
        const QString text = QString::number(score);
        EnterHighScore({text, text, text});
        std::optional<mdlRegistry::Step> step(std::in_place);
        Write("entries", QString::number(Read("entries").toInt() + 1));
        step.reset();
    }
    _exit(0);
}

// The scores of the table, in which every row is whole.
std::vector<int> Scores() {
    std::vector<int> scores;
    for (int row = 0; row < kHighScores; ++row) {
        const HighScore kept = StoredHighScore(row);
        EXPECT_TRUE(kept.name == kept.score && kept.date == kept.score) << "row " << row << " is torn";
        scores.push_back(kept.score.toInt());
    }
    return scores;
}

TEST(Registry, TwoGamesThatEndAtOnceBothFindTheirRows) {
    const StoreFile store;
    for (const pid_t game : {Play(11, 2010), Play(12, 2010)}) EXPECT_EQ(waitpid(game, nullptr, 0), game);
    EXPECT_EQ(Scores(), (std::vector{2002, 2001, 1992, 1991}));
    EXPECT_EQ(Read("entries"), "400");
}

TEST(Registry, AKilledGameTearsNothing) {
    const StoreFile store;
    QElapsedTimer entries;
    entries.start();
    waitpid(Play(10, 40), nullptr, 0);
    std::mt19937 chance(1);
    const auto longest =
        std::mt19937::result_type(entries.nsecsElapsed() / 2000);  // two entries, in microseconds
    int best = 40;
    for (int time = 0; time < 200; ++time) {
        const pid_t game = Play(best + 10);
        usleep(unsigned(chance() % longest));
        kill(game, SIGKILL);
        waitpid(game, nullptr, 0);
        const std::vector<int> scores = Scores();
        EXPECT_GE(scores[0], best);
        best = scores[0];
        ASSERT_EQ(scores, (std::vector{best, best - 10, best - 20, best - 30}));
    }
    EXPECT_GT(best, 40);
    EXPECT_FALSE(QFile::exists(store.path + ".unreadable-1"));
}

}  // namespace
