#pragma once

#include <QString>
#include <memory>
#include <optional>

struct sqlite3;

// A store of string values addressed by key path and value name, both case-insensitive: one SQLite database,
// open only while in use. Only its owner can access the file.
//
// An unreadable file (damaged, foreign, a folder, no permission) counts as an empty store. The next change
// renames it; it is never overwritten.
class StringStore {
public:
    // `file` is opened at each use.
    explicit StringStore(QString file) : file_(std::move(file)) {}
    Q_DISABLE_COPY_MOVE(StringStore)

    // The file of the current user, in the configuration folder.
    [[nodiscard]] static QString UserFile();

    // The string under `name` in the key `path`; nothing if there is none or it is of another type.
    [[nodiscard]] std::optional<QString> String(const QString& path, const QString& name) const;
    // Stores `text`, creating the store if missing. A failure changes nothing.
    void SetString(const QString& path, const QString& name, const QString& text);

    // Begin to End is one transaction: no other process changes the store meanwhile, and at the end either
    // everything is committed or, after any failure, nothing. Transactions do not nest (asserted). Waits for
    // another process's lock for two seconds, once; while that process keeps the lock, writes are lost and
    // unreadable values count as missing.
    void Begin();
    void End();

private:
    using Connection = std::shared_ptr<sqlite3>;

    [[nodiscard]] Connection Open() const;
    [[nodiscard]] bool Lock();

    QString file_;
    bool changing_ = false;
    mutable bool othersHang_ = false;  // as of the last use
    mutable Connection change_;        // null if it could not begin or has failed, even in a read
};
