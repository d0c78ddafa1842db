#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>
#include <cstdlib>

// What the fuzz targets share.

// Ends the target, so that the fuzzer keeps the input, unless `holds`.
inline void Require(bool holds) {
    if (!holds) std::abort();
}

// The input as the bytes of a file, which must outlive what is returned.
inline QByteArray Bytes(const unsigned char* data, std::size_t size) {
    return QByteArray::fromRawData(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
}

// One application without a display, for targets that need pictures, fonts or windows.
template <class Application>
void StartApplication() {
    static int argc = 3;
    static char name[] = "fuzz", option[] = "-platform", value[] = "offscreen";
    static char* argv[] = {name, option, value, nullptr};
    static Application application(argc, argv);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
}

// A folder in memory, for targets that read files.
inline QTemporaryDir& Folder() {
    static QTemporaryDir folder(QStringLiteral("/dev/shm/fuzz-XXXXXX"));
    return folder;
}

// Makes `bytes` the whole of the file `path`.
inline void WriteFile(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    Require(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
}
