#pragma once

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <QFile>

// What the file holds; nothing when it cannot be read.
inline QByteArray ReadFile(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline void WriteFile(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
    file.write(bytes);
}

// Makes a pipe that nobody writes to: opening it waits for ever.
inline QString MakePipe(const QString& path) {
    EXPECT_EQ(mkfifo(QFile::encodeName(path).constData(), 0600), 0) << path.toStdString();
    return path;
}
