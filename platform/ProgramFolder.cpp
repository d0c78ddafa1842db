#include "platform/ProgramFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace {

// The entry of `folder` whose name is `name` but for case; an exact match first, `name` itself if none.
QString EntryName(const QString& folder, const QString& name) {
    if (QFileInfo::exists(folder + '/' + name)) return name;
    const QStringList entries =
        QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    for (const QString& entry : entries)
        if (entry.compare(name, Qt::CaseInsensitive) == 0) return entry;
    return name;
}

}  // namespace

ProgramFolder ProgramFolder::Find() {
    const QString named = qEnvironmentVariable("TESSELOR_HOME");
    if (!named.isEmpty()) return ProgramFolder(named);
    const QString beside = QCoreApplication::applicationDirPath();
    if (QFileInfo(beside + "/Art").isDir() && QFileInfo(beside).isWritable()) return ProgramFolder(beside);
    return ProgramFolder(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
}

QString ProgramFolder::Path(const QString& name) const {
    QString path = root_;
    for (const QString& step : name.split('\\', Qt::SkipEmptyParts)) path += '/' + EntryName(path, step);
    return path;
}

QStringList ProgramFolder::Files(const QString& name) const {
    return QDir(Path(name)).entryList(QDir::Files, QDir::Name | QDir::IgnoreCase);
}
