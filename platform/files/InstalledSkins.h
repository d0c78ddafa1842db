#pragma once

#include <QString>

// Copies installed skins to a user's folder, each exactly once: a skin the user has removed or replaced stays
// that way, and skins added by a later release still arrive. "installed-skins.txt" in `home` lists the names
// already copied.
//
// installed, own: the two skin folders; `own` is created if missing, and a file already there, whatever its
// case, is never overwritten. home: the user's folder. A crash at any point leaves every file in `own` whole;
// at worst a skin is copied again.
//
// False when a skin could not be copied or recorded; the next call retries. Called once per start, when it
// usually only lists a folder and reads one small file.
[[nodiscard]] bool BringInSkins(const QString& installed, const QString& own, const QString& home);
