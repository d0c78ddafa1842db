#pragma once

#include <QString>
#include <QStringList>

// The folder the game finds its skins, rules text and sound files in. Names inside it are given with "\" as
// the separator and compared without regard to case.
class ProgramFolder {
public:
    // root: the folder. installed: the shared read-only copy, searched for anything missing from the folder
    // except skins; empty for none.
    explicit ProgramFolder(QString root, QString installed = {})
        : root_(std::move(root)), installed_(std::move(installed)) {}

    // The folder in force: TESSELOR_HOME when set; the executable's own when it holds "Art" and can be
    // written; otherwise the user's data folder over the installed copy.
    [[nodiscard]] static ProgramFolder Find();

    // The folder `own` of a user, with the skins of `installed` brought into it. When it cannot hold them and
    // has none of its own, the installed copy itself: the game is played with those skins, and cannot be
    // given others.
    [[nodiscard]] static ProgramFolder OfUser(const QString& own, const QString& installed);

    // The path of `name` ("\Art\sea.png"): of the file or folder that is there, whatever its case, or the one
    // to make.
    [[nodiscard]] QString Path(const QString& name) const;

    // The names of the files in the folder `name`, in order without regard to case; none when it is missing.
    [[nodiscard]] QStringList Files(const QString& name) const;

private:
    QString root_, installed_;
};
