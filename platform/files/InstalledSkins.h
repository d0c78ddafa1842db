#pragma once

#include <QString>

// Brings the skins of the installed copy into a user's folder, each once and never again: one that the user
// has removed or replaced stays so, and what a later release adds still comes. The file "installed-skins.txt"
// in `home` lists the names of those that have come.
//
// installed, own: the two skin folders; the second is made when it is missing, and a file that is there
// already is the user's and stays, whatever its case. home: the user's folder. An end at any moment leaves
// every file in `own` whole, and at worst brings one skin again.
//
// False when a skin could not be brought in, or not noted; the next call tries again. Called once a start,
// which has nothing to do as a rule: one list of a folder and one small file are read.
[[nodiscard]] bool BringInSkins(const QString& installed, const QString& own, const QString& home);
