#pragma once

#include <QTemporaryDir>

#include "platform/files/StringStore.h"
#include "shell/mdlRegistry.h"
#include "tests/support/Files.h"

// A string store in a folder of its own, in force while it lives.
struct StoreFile {
    struct Value {
        QString path, name, text;
    };
    explicit StoreFile(const QList<Value>& values = {}) {
        for (const auto& [key, name, text] : values) hive.SetString(key, name, text);
        mdlRegistry::Hive(&hive);
    }
    ~StoreFile() { mdlRegistry::Hive(nullptr); }

    // The database itself: it changes with every change of the store, and with nothing else.
    [[nodiscard]] QByteArray Bytes() const { return ReadFile(path); }

    // In memory, where flushing costs nothing: no test cuts the power.
    QTemporaryDir folder{QStringLiteral("/dev/shm/store-XXXXXX")};
    QString path = folder.filePath("store.sqlite");
    StringStore hive{path};
};
