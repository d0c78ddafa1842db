#include <sqlite3.h>
#include <sys/resource.h>
#include <sys/wait.h>

#include <csignal>

#include "screen/storage/HighScoreTable.h"
#include "tests/support/StoreFile.h"

namespace {

const QString kKey = "Software\\Tesselor\\Score";

QString Read(const QString& name, std::uint32_t root = mdlRegistry::kCurrentUser) {
    return mdlRegistry::ReadRegString(root, kKey, name, "default");
}

void Write(const QString& name, const QString& text, std::uint32_t root = mdlRegistry::kCurrentUser) {
    mdlRegistry::WriteRegString(root, kKey, name, text);
}

// Another program at the database `file`, which it makes when it is missing.
std::shared_ptr<sqlite3> Sql(const QString& file, const char* statements) {
    sqlite3* database = nullptr;
    sqlite3_open(QFile::encodeName(file).constData(), &database);
    EXPECT_EQ(sqlite3_exec(database, statements, nullptr, nullptr, nullptr), SQLITE_OK);
    return {database, sqlite3_close};
}

TEST(Registry, GivesTheStoredTextOrTheDefaultToItsOwnerAlone) {
    const QString any = "'; \" % \r\n\tЖанна 名前 🂡";
    const mode_t before = umask(0);
    const StoreFile store({{kKey, "0", "12,345"}, {kKey, "Ünder", any}, {kKey.toLower(), "null", QString()}});
    umask(before);
    Sql(store.path, "INSERT INTO strings VALUES('software\\tesselor\\score', 'number', 42)");
    const mdlRegistry::Step step;
    Write("0", "12");
    Write("0", "refused", 0x80000002);
    Write("cut", QStringLiteral("before\0after"));
    const std::pair<QString, QString> outcomes[] = {
        {Read("0"), "12"},       {Read("0", 0x80000002), "default"},
        {Read("üNDER"), any},    {Read("Null"), ""},
        {Read("cut"), "before"}, {Read("number"), "default"},
        {Read("%"), "default"},  {StringStore(store.path).String(kKey, "0").value_or(""), "12,345"},
    };
    for (const auto& [text, expected] : outcomes) EXPECT_EQ(text, expected);
    for (const char* file : {"", "-journal"}) EXPECT_EQ(QFile::permissions(store.path + file) & 0xFFF, 0x600);
}

// The entry itself, and what is in it.
std::pair<ino_t, QByteArray> Entry(const QString& path) {
    struct stat found = {};
    lstat(QFile::encodeName(path).constData(), &found);
    return {found.st_ino, S_ISREG(found.st_mode) ? ReadFile(path) : QByteArray()};
}

TEST(Registry, SetsAsideWhatItCannotRead) {
    static const QByteArray whole = StoreFile({{kKey, "0", "a"}, {kKey, "1", "b"}}).Bytes();
    using Path = const QString&;
    const std::pair<const char*, void (*)(Path)> wrecks[] = {
        {"a text", [](Path path) { WriteFile(path, "[A]\n"); }},
        {"damaged", [](Path path) { WriteFile(path, whole.first(4096) + QByteArray(4096, 'x')); }},
        {"out of order", [](Path path) { WriteFile(path, QByteArray(whole).replace("score0a", "score9a")); }},
        {"another's", [](Path path) { Sql(path, "CREATE TABLE other(x)"); }},
        {"a folder, a journal", [](Path path) { QDir().mkpath(path), WriteFile(path + "-journal", "j"); }},
        {"a pipe", [](Path path) { MakePipe(path); }},
    };
    for (const auto& [what, wreck] : wrecks) {
        const StoreFile store;
        for (const char* time : {"1", "2"}) {
            QFile::remove(store.path);
            wreck(store.path);
            const auto before = Entry(store.path), journal = Entry(store.path + "-journal");
            EXPECT_EQ(Read("0"), "default");
            Write("0", time);
            EXPECT_EQ(Read("0"), time) << what;
            const QString aside = store.path + ".unreadable-" + time;
            EXPECT_TRUE(Entry(aside) == before && Entry(aside + "-journal") == journal) << what;
        }
    }
}

TEST(Registry, AFullDiskOrAProcessThatHangsLeaveTheStoreAsItWas) {
    const StoreFile store({{kKey, "0", "before"}});
    signal(SIGXFSZ, SIG_IGN);
    rlimit room{0, RLIM_INFINITY};
    for (const auto& [hangs, read] :
         {std::pair("", "before"), {"BEGIN IMMEDIATE", "before"}, {"BEGIN EXCLUSIVE", "default"}}) {
        const auto other = Sql(store.path, hangs);
        {
            const mdlRegistry::Step step;
            Write("1", "after");
            setrlimit(RLIMIT_FSIZE, &room);  // full in the middle of the first step
            Write("2", "after");
        }
        room.rlim_cur = RLIM_INFINITY;
        setrlimit(RLIMIT_FSIZE, &room);
        for (int time = 0; time < 1000; ++time)  // would each take seconds
            ASSERT_EQ(Read("0") + Read("1") + Read("2"), QString(read) + "defaultdefault") << hangs;
    }
    Write("0", "after");
    EXPECT_EQ(Read("0"), "after");
}

// Enters the scores first, first + 10 and so on in a process of its own.
pid_t Play(int first, int last) {
    if (const pid_t child = fork(); child != 0) return child;
    for (int score = first; score <= last; score += 10) {
        const QString text = QString::number(score);
        EnterHighScore({text, text, text});
    }
    _exit(0);
}

// The scores of the table, from the best; zero for a row that is torn.
std::array<int, 4> Scores() {
    std::array<int, 4> scores{};
    for (std::size_t row = 0; row < 4; ++row)
        if (const auto [name, date, score] = StoredHighScore(int(row)); name == score && date == score)
            scores[row] = score.toInt();
    return scores;
}

TEST(Registry, TwoGamesAtOnceBothFindTheirRowsAndAKilledOneTearsNothing) {
    const StoreFile store;
    for (const pid_t game : {Play(11, 2010), Play(12, 2010)}) EXPECT_EQ(waitpid(game, nullptr, 0), game);
    ASSERT_EQ(Scores(), (std::array{2002, 2001, 1992, 1991}));
    waitpid(Play(3000, 3030), nullptr, 0);
    int best = 3030;
    double patience = 1000;  // microseconds, and more until some entries are made and others are not
    for (int time = 0; time < 200; ++time) {
        const pid_t game = Play(best + 10, INT_MAX - 10);
        usleep(unsigned(patience * (time * 7919 % 200) / 200));
        kill(game, SIGKILL);
        waitpid(game, nullptr, 0);
        ASSERT_GE(Scores()[0], best);
        patience *= Scores()[0] == best ? 1.1 : 0.9;
        best = Scores()[0];
        ASSERT_EQ(Scores(), (std::array{best, best - 10, best - 20, best - 30}));
    }
    EXPECT_GT(best, 3030);
}

}  // namespace
