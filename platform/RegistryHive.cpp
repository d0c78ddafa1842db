#include "platform/RegistryHive.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>
#include <cassert>
#include <cstdio>

// A file of our own rather than QSettings: that would drop damaged lines, and can neither hold its lock from
// a read to the write that follows from it nor tell text from numbers.

namespace {

using namespace std::chrono_literals;

constexpr qint64 kMostBytes = 1 << 20;  // no table is ever as large
constexpr auto kPatience = 2s;          // with another process

bool IsThere(const QString& path) {
    const QFileInfo info(path);
    return info.exists() || info.isSymLink();
}

// The store in `path`, empty when there is no file; nothing when what is there cannot be read.
std::optional<RegistryText> Read(const QString& path) {
    if (!IsThere(path)) return RegistryText();
    QFile file(path);
    const QFileInfo info(path);
    if (!info.isFile() || info.size() > kMostBytes || !file.open(QIODevice::ReadOnly)) return {};
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError) return {};
    return RegistryText::FromBytes(bytes);
}

// Not QFile::rename, which copies where it cannot rename.
bool SetAside(const QString& path) {
    QString aside;
    for (int i = 1; aside.isEmpty() || IsThere(aside); ++i)
        aside = path + QStringLiteral(".unreadable-") + QString::number(i);
    return std::rename(QFile::encodeName(path).constData(), QFile::encodeName(aside).constData()) == 0;
}

}  // namespace

RegistryHive::Change::Change(const QString& file)
    : lock(file + ".lock", kPatience), found(Read(file)), text(found.value_or(RegistryText())) {}

QString RegistryHive::UserFile() {
    return QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation) + "/registry.txt";
}

std::optional<QString> RegistryHive::String(const QString& path, const QString& name) const {
    if (change_) return change_->text.String(path, name);
    return Read(file_).value_or(RegistryText()).String(path, name);
}

void RegistryHive::SetString(const QString& path, const QString& name, const QString& text) {
    const bool alone = !change_;
    if (alone) Begin();
    change_->text.SetString(path, name, text);
    change_->edited = true;
    if (alone) End();
}

void RegistryHive::Begin() {
    assert(!change_);
    QDir().mkpath(QFileInfo(file_).path());
    change_.emplace(file_);
}

void RegistryHive::End() {
    if (change_ && change_->edited) Save(*change_);
    change_.reset();
}

void RegistryHive::Save(const Change& change) const {
    const QByteArray bytes = change.text.ToBytes();
    if (bytes.size() > kMostBytes) return;  // could not be read again
    if (!change.found && !SetAside(file_)) return;
    QSaveFile file(file_);
    if (!file.open(QIODevice::WriteOnly)) return;
    file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    // Asked here, because commit would take a file for whole whose last bytes found the disk full.
    if (file.write(bytes) == bytes.size() && file.flush()) file.commit();
}
