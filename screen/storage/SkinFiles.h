#pragma once

#include <QString>

class PictureSheet;

// The result for a dropped skin: its name in the skin folder, or why it was refused as one sentence for the
// player. Exactly one of the two is empty.
struct InstalledSkin {
    QString name;
    QString problem;
};

// Moves the skin `source`, which has been read as `sheet`, into `folder`, replacing the file `replaced` (a
// name; empty for none). Both skins exist whole in at least one place at any time: the new one is written to
// a hidden temporary file, flushed and renamed, and only then are the old skin and the original deleted. A
// failure changes nothing. If another skin has the name, in any case, a free one is chosen ("sea-2.png");
// characters that would hide the file from us ("a\b.png", ".sea.png") become "_". A symbolic link is followed
// for its contents, and the link itself is deleted. An original that cannot be deleted stays, silently.
[[nodiscard]] InstalledSkin InstallSkin(const PictureSheet& sheet, const QString& source,
                                        const QString& folder, const QString& replaced);

// The name of `source` if it is itself a file in `folder`, not a link; otherwise empty.
[[nodiscard]] QString NameInFolder(const QString& source, const QString& folder);
