#pragma once

#include <QString>
#include <QStringList>

// The folder of the skins, the rules text and the sound files. Names in it use "\" as the separator and are
// case-insensitive.
class ProgramFolder {
public:
    // root: the folder. installed: the shared read-only copy, searched for anything missing from the folder
    // except skins; empty for none.
    explicit ProgramFolder(QString root, QString installed = {})
        : root_(std::move(root)), installed_(std::move(installed)) {}

    // The folder to use: TESSELOR_HOME if set; the executable's own if it holds "Art" and can be written;
    // otherwise the user's data folder over the installed copy.
    [[nodiscard]] static ProgramFolder Find();

    // The user's folder `own`, with the skins of `installed` copied into it. If it cannot hold them and has
    // none of its own, the installed copy itself: the game can use those skins, but not add others.
    [[nodiscard]] static ProgramFolder OfUser(const QString& own, const QString& installed);

    // The path of `name` ("\Art\sea.png"): of the existing file or folder, in any case, or the one
    // to create.
    [[nodiscard]] QString Path(const QString& name) const;

    // The names of the files in the folder `name`, sorted case-insensitively; none if it is missing.
    [[nodiscard]] QStringList Files(const QString& name) const;

private:
    QString root_, installed_;
};
