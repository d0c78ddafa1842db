#include "platform/files/StringStore.h"

#include <sqlite3.h>

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QThread>
#include <cassert>

#include "platform/memory/Memory.h"

// SQLite's default rollback journal, not WAL: the rarely written store is then one file at rest, and reading
// it creates no others, which a read-only folder would refuse.

namespace {

// EXTRA also flushes the folder: otherwise a power cut right after a change could bring its journal back.
// This adds our table to a foreign database too, but kCheck finds that before anything is committed.
constexpr const char* kBegin =
    "PRAGMA synchronous = EXTRA; BEGIN IMMEDIATE; CREATE TABLE IF NOT EXISTS strings("
    "path TEXT NOT NULL, name TEXT NOT NULL, value, PRIMARY KEY(path, name)) WITHOUT ROWID";
// Everything in the database, and its faults.
constexpr const char* kCheck =
    "SELECT group_concat(name) || ' ' || (SELECT group_concat(integrity_check) FROM pragma_integrity_check) "
    "FROM sqlite_schema";
constexpr const char* kGood = "strings ok";

bool Execute(sqlite3* database, const char* sql) {
    return sqlite3_exec(database, sql, nullptr, nullptr, nullptr) == SQLITE_OK;
}

// Runs one statement and puts its only row, if that is text, into `text`. False on failure. A statement that
// could not be prepared is null, which makes the calls after it fail.
bool Run(sqlite3* database, const char* sql, const QStringList& arguments, std::optional<QString>& text) {
    sqlite3_stmt* statement = nullptr;
    sqlite3_prepare_v2(database, sql, -1, &statement, nullptr);
    for (int at = 0; at < arguments.size(); ++at) {
        const QByteArray bytes = arguments[at].toUtf8();
        sqlite3_bind_text(statement, at + 1, bytes.constData(), int(bytes.size()), SQLITE_TRANSIENT);
    }
    const int code = sqlite3_step(statement);
    if (code == SQLITE_ROW && sqlite3_column_type(statement, 0) == SQLITE_TEXT) {
        const auto* bytes = reinterpret_cast<const char*>(sqlite3_column_text(statement, 0));
        text = QString::fromUtf8(bytes, sqlite3_column_bytes(statement, 0));
    }
    sqlite3_finalize(statement);
    return code == SQLITE_ROW || code == SQLITE_DONE;
}

bool IsGood(sqlite3* database) {
    std::optional<QString> verdict;
    return Run(database, kCheck, {}, verdict) && verdict == QLatin1String(kGood);
}

// Move the journal first: a database that has lost its journal is still unreadable, but SQLite would delete a
// journal that has lost its database.
void SetAside(const QString& file) {
    const QString journal = QStringLiteral("-journal");
    QString aside;
    for (int i = 1; aside.isEmpty() || QFile::exists(aside) || QFile::exists(aside + journal); ++i)
        aside = file + QStringLiteral(".unreadable-") + QString::number(i);
    QFile::rename(file + journal, aside + journal);
    QFile::rename(file, aside);
}

}  // namespace

QString StringStore::UserFile() {
    return QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation) + "/store.sqlite";
}

// Reads nothing yet. The last error before closing shows whether another process hangs.
StringStore::Connection StringStore::Open() const {
    sqlite3* database = nullptr;
    sqlite3_open_v2(QFile::encodeName(file_).constData(), &database, SQLITE_OPEN_READWRITE, nullptr);
    const auto wait = [](void*, int times) { return QThread::msleep(2), int(times < 1000); };
    if (!othersHang_) sqlite3_busy_handler(database, wait, nullptr);
    return {database, [this](sqlite3* last) {
                othersHang_ = sqlite3_errcode(last) == SQLITE_BUSY;
                sqlite3_close(last);
                Memory::ReturnCode("libsqlite3");  // over a megabyte
            }};
}

std::optional<QString> StringStore::String(const QString& path, const QString& name) const {
    const Connection database = change_ ? change_ : Open();
    std::optional<QString> text;
    const char* find = "SELECT value FROM strings WHERE path = ? AND name = ?";
    if (!Run(database.get(), find, {path.toCaseFolded(), name.toCaseFolded()}, text)) change_.reset();
    return text;
}

void StringStore::SetString(const QString& path, const QString& name, const QString& text) {
    const bool alone = !changing_;
    if (alone) Begin();
    std::optional<QString> none;
    const QStringList row{path.toCaseFolded(), name.toCaseFolded(), text};
    if (change_ && !Run(change_.get(), "REPLACE INTO strings VALUES(?, ?, ?)", row, none)) change_.reset();
    if (alone) End();
}

void StringStore::Begin() {
    assert(!changing_);
    changing_ = true;
    QDir().mkpath(QFileInfo(file_).path());
    if (Lock()) return;
    SetAside(file_);
    static_cast<void>(Lock());
}

// Begins the change if possible. False if the file is unreadable, not just busy: SQLite does not distinguish
// a folder or a pipe from missing permissions. It would also create the file readable by all, and its
// journals inherit the mode.
bool StringStore::Lock() {
    const QFileInfo entry(file_);
    if (entry.exists() && !(entry.isFile() && entry.isReadable())) return false;
    static_cast<void>(
        QFile(file_).open(QIODevice::WriteOnly | QIODevice::NewOnly, QFile::ReadOwner | QFile::WriteOwner));
    change_ = Open();
    const bool begun = Execute(change_.get(), kBegin);
    if (begun && IsGood(change_.get())) return true;
    const int why = sqlite3_errcode(change_.get());
    change_.reset();
    return !begun && why != SQLITE_CORRUPT && why != SQLITE_NOTADB;
}

void StringStore::End() {
    if (change_) Execute(change_.get(), "COMMIT");
    change_.reset();  // rolls back if the commit failed
    changing_ = false;
}
