#include "platform/files/ProgramFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include "platform/files/InstalledSkins.h"

namespace {

const QString kSkinFolder = QStringLiteral("\\Art\\");

// The entry of `folder` that matches `name` in any case; an exact match wins, `name` itself if none.
QString EntryName(const QString& folder, const QString& name) {
    if (QFileInfo::exists(folder + '/' + name)) return name;
    const QStringList entries =
        QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    for (const QString& entry : entries)
        if (entry.compare(name, Qt::CaseInsensitive) == 0) return entry;
    return name;
}

// The path of `name` in `root`, each component in any case.
QString PathIn(const QString& root, const QString& name) {
    QString path = root;
    for (const QString& step : name.split('\\', Qt::SkipEmptyParts)) path += '/' + EntryName(path, step);
    return path;
}

// The folder of the data shipped with the program: beside it if it was unpacked into a read-only folder,
// otherwise where the installation puts them.
QString InstalledCopy(const QString& beside) {
    return QFileInfo(beside + "/Art").isDir() ? beside : QDir::cleanPath(beside + '/' + TESSELOR_DATA);
}

}  // namespace

ProgramFolder ProgramFolder::Find() {
    const QString named = qEnvironmentVariable("TESSELOR_HOME");
    if (!named.isEmpty()) return ProgramFolder(named);
    const QString beside = QCoreApplication::applicationDirPath();
    if (QFileInfo(beside + "/Art").isDir() && QFileInfo(beside).isWritable()) return ProgramFolder(beside);
    return OfUser(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation), InstalledCopy(beside));
}

ProgramFolder ProgramFolder::OfUser(const QString& own, const QString& installed) {
    const ProgramFolder folder(own, installed);
    const bool whole = BringInSkins(PathIn(installed, kSkinFolder), PathIn(own, kSkinFolder), own);
    return whole || !folder.Files(kSkinFolder).isEmpty() ? folder : ProgramFolder(installed);
}

QString ProgramFolder::Path(const QString& name) const {
    QString path = PathIn(root_, name);
    // A missing skin was deleted by the player.
    if (installed_.isEmpty() || name.startsWith(kSkinFolder) || QFileInfo::exists(path)) return path;
    QString there = PathIn(installed_, name);
    return QFileInfo::exists(there) ? there : path;
}

QStringList ProgramFolder::Files(const QString& name) const {
    return QDir(Path(name)).entryList(QDir::Files, QDir::Name | QDir::IgnoreCase);
}
