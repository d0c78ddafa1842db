#pragma once

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "platform/RegistryHive.h"
#include "shell/mdlRegistry.h"

// A string store in a folder of its own, in force while it lives.
class StoreFile {
public:
    explicit StoreFile(const QByteArray& bytes = {}) {
        if (!bytes.isEmpty()) Write(bytes);
        mdlRegistry::Hive(&hive);
    }
    ~StoreFile() { mdlRegistry::Hive(nullptr); }

    [[nodiscard]] static QByteArray BytesOf(const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    [[nodiscard]] QByteArray Bytes() const { return BytesOf(path); }
    void Write(const QByteArray& bytes) const {
        QFile file(path);
        if (file.open(QIODevice::WriteOnly)) file.write(bytes);
    }

    QTemporaryDir folder;
    QString path = folder.filePath(QStringLiteral("store.txt"));
    QString firstAside = path + ".unreadable-1";
    RegistryHive hive{path};
};
