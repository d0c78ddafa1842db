#pragma once

#include <QString>
#include <optional>

#include "platform/FileLock.h"
#include "platform/RegistryText.h"

// A store of string values addressed by key path and value name, both compared without regard to case. It is
// one text file, replaced as a whole: whoever reads it, and whatever stops a writer, finds it as it was
// before a change or after it.
//
// What stands in the file's place and cannot be read (not UTF-8, too large, a folder, closed to us) counts as
// an empty store. It is set aside under another name before a new file is written, never overwritten.
class RegistryHive {
public:
    // A store in `file`, which is read when it is first asked for something.
    explicit RegistryHive(QString file) : file_(std::move(file)) {}

    // The file of the current user, in the configuration folder.
    [[nodiscard]] static QString UserFile();

    // The string under `name` in the key `path`; nothing when there is none or it is of another type.
    [[nodiscard]] std::optional<QString> String(const QString& path, const QString& name) const;
    // Stores `text`, making the key when it is missing. A failure leaves the store as it was.
    void SetString(const QString& path, const QString& name, const QString& text);

    // What is read and written from Begin to End is one change: no other process changes the store meanwhile,
    // and the whole of it reaches the disk at its end or not at all. Changes do not nest (asserted). Another
    // process that does not let go is waited for two seconds.
    void Begin();
    void End();

private:
    struct Change {
        explicit Change(const QString& file);
        FileLock lock;  // first: what is read afterwards stays true
        std::optional<RegistryText> found;
        RegistryText text;
        bool edited = false;
    };

    void Save(const Change& change) const;

    QString file_;
    std::optional<Change> change_;  // the change under way
};
