#pragma once

#include <QString>
#include <QStringList>

// The folder the game finds its skins, rules text and sound files in. Names inside it are given with "\" as
// the separator and compared without regard to case.
class ProgramFolder {
public:
    explicit ProgramFolder(QString root) : root_(std::move(root)) {}

    // The folder in force: TESSELOR_HOME when set; the executable's own when it holds "Art" and can be
    // written; otherwise the user's data folder.
    [[nodiscard]] static ProgramFolder Find();

    // The path of `name` ("\Art\sea.png"): of the file or folder that is there, whatever its case, or the one
    // to make.
    [[nodiscard]] QString Path(const QString& name) const;

    // The names of the files in the folder `name`, in order without regard to case; none when it is missing.
    [[nodiscard]] QStringList Files(const QString& name) const;

private:
    QString root_;
};
