#pragma once

#include <QString>
#include <memory>
#include <optional>

struct sqlite3;

// A store of string values addressed by key path and value name, both compared without regard to case: one
// SQLite database, which is open only while it is used. The file is its owner's alone.
//
// What stands in its place and cannot be read (damaged, something else, a folder, closed to us) counts as an
// empty store. The next change sets it aside under another name, never overwrites it.
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

    // What is read and written from Begin to End is one change: no other process changes the store meanwhile,
    // and the whole of it reaches the disk at its end or, after any failure, nothing. Changes do not nest
    // (asserted). Another process that does not let go is waited for two seconds, once; until it lets go,
    // writes are lost, and what cannot be read counts as missing.
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
