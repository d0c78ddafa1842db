#pragma once

#include <QDir>
#include <QTemporaryDir>

#include "platform/StringStore.h"
#include "shell/mdlRegistry.h"
#include "tests/support/Files.h"

// A string store in a folder of its own, in force while it lives.
class StoreFile {
public:
    struct Value {
        QString path, name, text;
    };
    explicit StoreFile(const QList<Value>& values = {}) {
        if (!values.isEmpty()) hive.Begin();
        for (const auto& [key, name, text] : values) hive.SetString(key, name, text);
        hive.End();
        mdlRegistry::Hive(&hive);
    }
    ~StoreFile() { mdlRegistry::Hive(nullptr); }

    // The database itself: it changes with every change of the store, and with nothing else.
    [[nodiscard]] QByteArray Bytes() const { return ReadFile(path); }

    // In memory, where flushing costs nothing: no test cuts the power.
    QTemporaryDir folder{QStringLiteral("/dev/shm/store-XXXXXX")};
    QString path = folder.filePath(QStringLiteral("store.sqlite"));
    StringStore hive{path};
};
