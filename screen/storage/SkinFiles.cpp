#include "screen/storage/SkinFiles.h"

#include <unistd.h>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryFile>
#include <cstdio>

#include "platform/language/Tesselor.h"
#include "platform/pictures/PictureSheet.h"

namespace {

// Hidden, so that a file left by a crash never takes a slot.
const QString kIncoming = QStringLiteral(".incoming-");

bool IsTaken(const QStringList& names, const QString& name, const QString& replaced) {
    return name.compare(replaced, Qt::CaseInsensitive) != 0 && names.contains(name, Qt::CaseInsensitive);
}

// The name of `source`, made findable: not hidden, and without the program folder's separator.
QString VisibleName(const QString& source) {
    QString name = QFileInfo(source).fileName().replace('\\', '_');
    if (name.startsWith('.')) name[0] = '_';
    return name;
}

// `wanted`, or the first of "wanted-2", "wanted-3", ... that is free.
QString FreeName(const QDir& folder, const QString& wanted, const QString& replaced) {
    const QStringList names = folder.entryList(QDir::AllEntries | QDir::Hidden | QDir::System);
    const QFileInfo file(wanted);
    const QString ending = file.suffix().isEmpty() ? QString() : '.' + file.suffix();
    const QString stem = wanted.chopped(ending.size());
    QString name = wanted;
    for (int number = 2; IsTaken(names, name, replaced); ++number)
        name = stem + '-' + QString::number(number) + ending;
    return name;
}

bool WriteFlushed(QTemporaryFile& file, const QByteArray& bytes) {
    return file.open() && file.write(bytes) == bytes.size() && file.flush() && fsync(file.handle()) == 0;
}

// Writes `bytes` to the file `name` in `folder`. False on failure, with nothing changed there.
bool Put(const QDir& folder, const QString& name, const QByteArray& bytes) {
    QTemporaryFile incoming(folder.filePath(kIncoming + QStringLiteral("XXXXXX")));
    if (!WriteFlushed(incoming, bytes)) return false;
    incoming.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther);
    const QByteArray from = QFile::encodeName(incoming.fileName());
    if (std::rename(from, QFile::encodeName(folder.filePath(name))) != 0) return false;
    incoming.setAutoRemove(false);
    return true;
}

void RemoveLeftovers(const QDir& folder) {
    for (const QString& name : folder.entryList({kIncoming + '*'}, QDir::Files | QDir::Hidden))
        QFile::remove(folder.filePath(name));
}

}  // namespace

InstalledSkin InstallSkin(const PictureSheet& sheet, const QString& source, const QString& folder,
                          const QString& replaced) {
    const QDir art(folder);
    art.mkpath(QStringLiteral("."));
    RemoveLeftovers(art);
    const QString name = FreeName(art, VisibleName(source), replaced);
    if (!Put(art, name, sheet.Bytes()))
        return {{}, Tesselor::tr("\"%1\" could not be written into %2.", "file, folder").arg(name, folder)};
    // The same name in another case is another file here, and a slot must not have two.
    if (!replaced.isEmpty() && replaced != name) QFile::remove(art.filePath(replaced));
    QFile::remove(source);
    return {name, {}};
}

QString NameInFolder(const QString& source, const QString& folder) {
    const QFileInfo file(source);
    const bool inside = !file.isSymLink() && QFileInfo(file.absolutePath()).canonicalFilePath() ==
                                                 QFileInfo(folder).canonicalFilePath();
    return inside ? file.fileName() : QString();
}
