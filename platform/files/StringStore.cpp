#include "platform/files/StringStore.h"

#include <sqlite3.h>

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QThread>
#include <cassert>

// The rollback journal, SQLite's default, rather than WAL: the store is read a few times and rarely written,
// so it is one file at rest, and reading makes no others, which a closed folder would refuse.

namespace {

// EXTRA also flushes the folder: else a power cut right after a change could bring its journal back. Another
// program's database gets our table too here, but not for long: it is found out before the change is kept.
constexpr const char* kBegin =
    "PRAGMA synchronous = EXTRA; BEGIN IMMEDIATE; CREATE TABLE IF NOT EXISTS strings("
    "path TEXT NOT NULL, name TEXT NOT NULL, value, PRIMARY KEY(path, name)) WITHOUT ROWID";
// All that the database holds, and what is wrong with it.
constexpr const char* kCheck =
    "SELECT group_concat(name) || ' ' || (SELECT group_concat(integrity_check) FROM pragma_integrity_check) "
    "FROM sqlite_schema";
constexpr const char* kGood = "strings ok";

bool Execute(sqlite3* database, const char* sql) {
    return sqlite3_exec(database, sql, nullptr, nullptr, nullptr) == SQLITE_OK;
}

// Runs one statement; its only row, if it has one and it is a text, goes to `text`. False for a failure.
// A statement that could not be prepared is null, with which the rest fails.
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

// Nothing is read yet. What happened last before it is closed tells whether others hang.
StringStore::Connection StringStore::Open() const {
    sqlite3* database = nullptr;
    sqlite3_open_v2(QFile::encodeName(file_).constData(), &database, SQLITE_OPEN_READWRITE, nullptr);
    const auto wait = [](void*, int times) { return QThread::msleep(2), int(times < 1000); };
    if (!othersHang_) sqlite3_busy_handler(database, wait, nullptr);
    return {database, [this](sqlite3* last) {
                othersHang_ = sqlite3_errcode(last) == SQLITE_BUSY;
                sqlite3_close(last);
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

// Begins the change, if it can. False when what is there cannot be read, rather than be had now: SQLite does
// not tell a folder or a pipe from a want of rights. It would make the file for everybody, and its journals
// take over the mode.
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
    change_.reset();  // undoes what could not be committed
    changing_ = false;
}
