#include "platform/files/InstalledSkins.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>

namespace {

QStringList FilesIn(const QString& folder) {
    return QDir(folder).entryList(QDir::Files, QDir::Name);
}

QByteArray Bytes(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Flush before the commit, which on a full disk may otherwise install a truncated file.
bool Save(const QString& path, const QByteArray& bytes) {
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush() &&
           file.commit();
}

// Write outside the skin folder first, so that leftovers never take a slot.
bool Bring(const QString& name, const QString& installed, const QString& own, const QString& home) {
    const QByteArray skin = Bytes(installed + '/' + name);
    const QString incoming = home + "/.incoming-" + name;
    const QString place = own + '/' + name;
    if (skin.isEmpty() || !Save(incoming, skin)) return false;
    // Fails when another process won the race.
    const bool isIn = QFile::rename(incoming, place) || QFile::exists(place);
    QFile::remove(incoming);
    return isIn;
}

}  // namespace

bool BringInSkins(const QString& installed, const QString& own, const QString& home) {
    const QString list = home + "/installed-skins.txt";
    QStringList noted = QString::fromUtf8(Bytes(list)).split('\n', Qt::SkipEmptyParts);
    QStringList fresh = FilesIn(installed);
    fresh.removeIf([&noted](const QString& name) { return noted.contains(name); });
    if (fresh.isEmpty()) return true;
    QDir().mkpath(own);
    const QStringList there = FilesIn(own);
    bool whole = true;
    for (const QString& name : fresh) {
        if (there.contains(name, Qt::CaseInsensitive) || Bring(name, installed, own, home))
            noted.append(name);
        else
            whole = false;
    }
    return Save(list, noted.join('\n').toUtf8() + '\n') && whole;
}
