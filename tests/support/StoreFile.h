#pragma once

#include <QDir>
#include <QTemporaryDir>

#include "platform/RegistryHive.h"
#include "shell/mdlRegistry.h"
#include "tests/support/Files.h"

// A string store in a folder of its own, in force while it lives.
class StoreFile {
public:
    explicit StoreFile(const QByteArray& bytes = {}) {
        if (!bytes.isEmpty()) Write(bytes);
        mdlRegistry::Hive(&hive);
    }
    ~StoreFile() { mdlRegistry::Hive(nullptr); }

    [[nodiscard]] QByteArray Bytes() const { return ReadFile(path); }
    void Write(const QByteArray& bytes) const { WriteFile(path, bytes); }

    QTemporaryDir folder;
    QString path = folder.filePath(QStringLiteral("store.txt"));
    QString firstAside = path + ".unreadable-1";
    RegistryHive hive{path};
};
