#pragma once

#include <QString>

class PictureSheet;

// What became of a dropped skin: its name in the skin folder, or the reason it was refused as one sentence
// for the player. Exactly one of the two is empty.
struct InstalledSkin {
    QString name;
    QString problem;
};

// Moves the skin `source`, which has been read as `sheet`, into `folder`, replacing the file `replaced` (a
// name; empty for none). At every moment each of the two skins exists whole in at least one place: the new
// one is written to a hidden temporary file, flushed and renamed, and only then are the old skin and the
// original deleted. A failure leaves everything as it was. If another skin has the name, in whatever case, a
// free one is chosen
// ("sea-2.png"); characters that would hide the file from us ("a\b.png", ".sea.png") become "_". A symbolic
// link is followed for its contents, and the link itself is deleted. An original that cannot be deleted
// stays, silently.
[[nodiscard]] InstalledSkin InstallSkin(const PictureSheet& sheet, const QString& source,
                                        const QString& folder, const QString& replaced);

// The name of `source` when it lies in `folder` already, as the file itself and not through a link; else
// empty.
[[nodiscard]] QString NameInFolder(const QString& source, const QString& folder);
