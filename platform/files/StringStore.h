#pragma once

#include <QString>
#include <memory>
#include <optional>

struct sqlite3;

// A store of string values addressed by key path and value name, both compared without regard to case: one
// SQLite database, which is open only while it is used. The file is its owner's alone.
//
// An unreadable file (damaged, foreign, a folder, no permission) counts as an empty store. The next change
// renames it; it is never overwritten.
class StringStore {
public:
    // A store in `file`, which is opened when it is first asked for something.
    explicit StringStore(QString file) : file_(std::move(file)) {}
    Q_DISABLE_COPY_MOVE(StringStore)

    // The file of the current user, in the configuration folder.
    [[nodiscard]] static QString UserFile();

    // The string under `name` in the key `path`; nothing when there is none or it is of another type.
    [[nodiscard]] std::optional<QString> String(const QString& path, const QString& name) const;
    // Stores `text`, making the store when it is missing. A failure leaves it as it was.
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
    mutable bool othersHang_ = false;  // found at the last use
    mutable Connection change_;        // none when it could not begin or has failed, in a read too
};
