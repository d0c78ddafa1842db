#pragma once

#include <QString>

// What became of a dropped skin: its name in the skin folder, or the reason it was refused as one sentence
// for the player. Exactly one of the two is empty.
struct InstalledSkin {
    QString name;
    QString problem;
};

// Moves the skin `source` into the folder `folder`, where it replaces the file `replaced` (a name; empty for
// none). At every moment each of the two skins exists whole in at least one place: the new one is written
// under a hidden name, flushed and renamed, and only then do the old skin and the original go. A failure
// leaves all as it was. A name that another skin has, in whatever case, gives way to a free one
// ("sea-2.png"), and of one that would not be found again ("a\b.png", ".sea.png") the sign in the way becomes
// "_". Of a link the file it points to is taken, and the link goes. An original that cannot be
// deleted stays, without a word.
[[nodiscard]] InstalledSkin InstallSkin(const QString& source, const QString& folder,
                                        const QString& replaced);

// The name of `source` when it lies in `folder` already, as the file itself and not through a link; else
// empty.
[[nodiscard]] QString NameInFolder(const QString& source, const QString& folder);
