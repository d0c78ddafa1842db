// Installs one skin: install_skin SOURCE FOLDER REPLACED. Exits with 1 when it was refused.

#include <QCoreApplication>

#include "platform/pictures/PictureSheet.h"
#include "screen/storage/SkinFiles.h"

int main(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    const auto argument = [argv](int i) { return QString::fromLocal8Bit(argv[i]); };
    QString why;
    const auto sheet = PictureSheet::Load(argument(1), why);
    return sheet && InstallSkin(*sheet, argument(1), argument(2), argument(3)).problem.isEmpty() ? 0 : 1;
}
