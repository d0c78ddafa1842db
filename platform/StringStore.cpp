#include "platform/StringStore.h"

#include <fcntl.h>
#include <sqlite3.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QThread>
#include <algorithm>
#include <cassert>
#include <cerrno>
#include <cstdio>

// The rollback journal, SQLite's default, rather than WAL: the store is read a few times and rarely written,
// so it is one file at rest, and reading makes no others, which a closed folder would refuse.

namespace {

// The schema of our stores, as text: another one, whatever it would run, is not ours. Texts are kept as
// UTF-16, which holds any QString, half of a surrogate pair too. A value may be of any type.
constexpr const char* kSchema =
    "CREATE TABLE strings(path TEXT NOT NULL, name TEXT NOT NULL, value, PRIMARY KEY(path, name)) WITHOUT "
    "ROWID";
constexpr const char* kReadSchema = "SELECT group_concat(sql) FROM sqlite_schema";
// EXTRA also flushes the folder: else a power cut right after a change could bring its journal back. The
// pages are a megabyte, more than any table needs.
constexpr const char* kBegin =
    "PRAGMA encoding = 'UTF-16'; PRAGMA synchronous = EXTRA; PRAGMA max_page_count = 256; BEGIN IMMEDIATE";

constexpr off_t kMostBytes = 4 << 20;  // of a file, its journal with room to spare
constexpr int kMostWaits = 2000;       // of a millisecond

// The files that SQLite may leave beside a store and needs to read it; the store's own comes last.
constexpr const char* kFiles[] = {"-journal", "-wal", "-shm", ""};

struct Finalize {
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
// One that could not be prepared is null, with which binds and steps fail.
using Statement = std::unique_ptr<sqlite3_stmt, Finalize>;

Statement Prepare(sqlite3* database, const char* sql) {
    sqlite3_stmt* statement = nullptr;
    sqlite3_prepare_v2(database, sql, -1, &statement, nullptr);
    return Statement(statement);
}

// The mark in front says that the units are in our order. SQLite takes it off, as it would the text's own.
void Bind(const Statement& statement, int at, const QString& text) {
    const QString marked = QChar(QChar::ByteOrderMark) + text;
    sqlite3_bind_text16(statement.get(), at, marked.utf16(), int(marked.size() * 2), SQLITE_TRANSIENT);
}

Statement PrepareFor(sqlite3* database, const char* sql, const QString& path, const QString& name) {
    Statement statement = Prepare(database, sql);
    Bind(statement, 1, path.toCaseFolded());
    Bind(statement, 2, name.toCaseFolded());
    return statement;
}

// Steps to the only row and takes its text; false for a failure, but not for want of a row or a text.
bool Take(const Statement& query, std::optional<QString>& text) {
    const int code = sqlite3_step(query.get());
    if (code == SQLITE_ROW && sqlite3_column_type(query.get(), 0) == SQLITE_TEXT) {
        const auto* units = static_cast<const QChar*>(sqlite3_column_text16(query.get(), 0));
        text = QString(units, sqlite3_column_bytes16(query.get(), 0) / 2);
    }
    return code == SQLITE_ROW || code == SQLITE_DONE;
}

bool Execute(sqlite3* database, const char* sql) {
    return sqlite3_exec(database, sql, nullptr, nullptr, nullptr) == SQLITE_OK;
}

bool Find(sqlite3* database, const QString& path, const QString& name, std::optional<QString>& text) {
    const char* sql = "SELECT value FROM strings WHERE path = ? AND name = ?";
    return Take(PrepareFor(database, sql, path, name), text);
}

bool Put(sqlite3* database, const QString& path, const QString& name, const QString& text) {
    const Statement put = PrepareFor(database, "REPLACE INTO strings VALUES(?, ?, ?)", path, name);
    Bind(put, 3, text);
    return sqlite3_step(put.get()) == SQLITE_DONE;
}

bool IsOurs(sqlite3* database) {
    std::optional<QString> schema;
    return Take(Prepare(database, kReadSchema), schema) && schema == QLatin1String(kSchema);
}

// Makes a new store ours; looks through any other. A value of false says nothing about why.
bool MakeOrCheck(sqlite3* database) {
    std::optional<QString> schema, verdict;
    if (!Take(Prepare(database, kReadSchema), schema)) return false;
    if (!schema) return Execute(database, kSchema);
    return schema == QLatin1String(kSchema) && Take(Prepare(database, "PRAGMA integrity_check"), verdict) &&
           verdict == QLatin1String("ok");
}

// Whether what failed last failed by what the file holds, rather than by others, the disk or want of memory.
bool IsUnreadable(sqlite3* database) {
    const int code = sqlite3_extended_errcode(database);
    const auto isAmong = [](int one, std::initializer_list<int> codes) {
        return std::find(codes.begin(), codes.end(), one) != codes.end();
    };
    return isAmong(code, {SQLITE_IOERR_READ, SQLITE_IOERR_CORRUPTFS}) ||
           // A check that ends with a bad verdict is no error.
           isAmong(code & 0xFF,
                   {SQLITE_OK, SQLITE_ROW, SQLITE_DONE, SQLITE_ERROR, SQLITE_CORRUPT, SQLITE_NOTADB});
}

// Asked before SQLite opens anything: opening a pipe could wait for ever. What is not there harms nobody;
// each file is looked at once, because another process's journal may go at any moment.
bool CanBeOpened(const QString& file) {
    return std::all_of(std::begin(kFiles), std::end(kFiles), [&file](const char* ending) {
        const QByteArray path = QFile::encodeName(file + ending);
        struct stat entry {};
        if (::lstat(path.constData(), &entry) != 0) return true;
        if (S_ISLNK(entry.st_mode) && ::stat(path.constData(), &entry) != 0) return false;
        return S_ISREG(entry.st_mode) && entry.st_size <= kMostBytes &&
               (::access(path.constData(), R_OK) == 0 || errno != EACCES);
    });
}

bool IsThere(const QString& path) {
    const QFileInfo info(path);
    return info.exists() || info.isSymLink();
}

bool Rename(const QString& from, const QString& to) {
    return std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0;
}

// The journal goes first: without it, what stays can still not be read; alone, it would be deleted.
bool SetAside(const QString& file) {
    const auto isTaken = [](const QString& aside) {
        return std::any_of(std::begin(kFiles), std::end(kFiles),
                           [&aside](const char* ending) { return IsThere(aside + ending); });
    };
    QString aside;
    for (int i = 1; aside.isEmpty() || isTaken(aside); ++i)
        aside = file + QStringLiteral(".unreadable-") + QString::number(i);
    return std::all_of(std::begin(kFiles), std::end(kFiles), [&](const char* ending) {
        return !IsThere(file + ending) || Rename(file + ending, aside + ending);
    });
}

// Which file it is, whatever its name becomes.
std::pair<dev_t, ino_t> Identity(const QString& file) {
    struct stat entry {};
    ::lstat(QFile::encodeName(file).constData(), &entry);
    return {entry.st_dev, entry.st_ino};
}

// SQLite would make it for everybody; its journals take over the mode.
void Create(const QString& file) {
    const int made = ::open(QFile::encodeName(file).constData(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
    if (made >= 0) ::close(made);
}

}  // namespace

void StringStore::Close::operator()(sqlite3* database) const {
    sqlite3_close(database);
}

QString StringStore::UserFile() {
    return QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation) + "/store.sqlite";
}

int StringStore::WaitForOthers(void* waits, int) {
    if (*static_cast<int*>(waits) == kMostWaits) return 0;
    QThread::msleep(1);
    return ++*static_cast<int*>(waits);
}

// Nothing is read yet.
StringStore::Connection StringStore::Open() const {
    sqlite3* database = nullptr;
    sqlite3_open_v2(QFile::encodeName(file_).constData(), &database,
                    SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
    sqlite3_busy_handler(database, WaitForOthers, &waits_);
    return Connection(database);
}

std::optional<QString> StringStore::String(const QString& path, const QString& name) const {
    std::optional<QString> text;
    if (change_) {
        if (!Find(change_.get(), path, name, text)) change_.reset();
    } else if (CanBeOpened(file_)) {
        const Connection database = Open();
        if (IsOurs(database.get()) && Find(database.get(), path, name, text)) waits_ = 0;
    }
    return text;
}

void StringStore::SetString(const QString& path, const QString& name, const QString& text) {
    const bool alone = !changing_;
    if (alone) Begin();
    if (change_ && !Put(change_.get(), path, name, text)) change_.reset();
    if (alone) End();
}

// Another process may set the same file aside: what stands there then is another one.
void StringStore::Begin() {
    assert(!changing_);
    changing_ = true;
    QDir().mkpath(QFileInfo(file_).path());
    const auto found = Identity(file_);
    if (!Lock() && (Identity(file_) != found || SetAside(file_))) static_cast<void>(Lock());
}

// Begins the change, if it can. False when what is there cannot be read.
bool StringStore::Lock() {
    if (!CanBeOpened(file_)) return false;
    Create(file_);
    change_ = Open();
    if (Execute(change_.get(), kBegin) && MakeOrCheck(change_.get())) return true;
    const bool unreadable = IsUnreadable(change_.get());
    change_.reset();
    return !unreadable;
}

void StringStore::End() {
    if (change_ && Execute(change_.get(), "COMMIT")) waits_ = 0;
    change_.reset();  // undoes what could not be committed
    changing_ = false;
}
