#include "shell/mdlMain.h"

#include <QApplication>
#include <QIcon>
#include <QImageReader>
#include <QLocale>
#include <cstdlib>

#include "platform/controls/Access.h"
#include "platform/desktop/Dialogs.h"
#include "platform/desktop/Shell.h"
#include "platform/desktop/Time.h"
#include "platform/files/StringStore.h"
#include "platform/language/Language.h"
#include "platform/pictures/PixelFile.h"
#include "platform/sound/SoundFiles.h"
#include "platform/sound/SoundPlayer.h"
#include "screen/Look.h"
#include "screen/frmGame.h"
#include "shell/SystemRandom.h"
#include "shell/frmIcon.h"
#include "shell/mdlFontSize.h"
#include "shell/mdlRegistry.h"
#include "shell/mdlSound.h"

namespace {

// The most memory Qt may allocate for one picture, in megabytes, so that no file can exhaust memory: the
// largest skin has 16 million pixels of 8 bytes.
constexpr int kPictureMegabytes = 128;

// Only the sizes shown in title bars and task bars; the desktop entry has larger ones.
QIcon ProgramIcon() {
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64})
        icon.addPixmap(QPixmap::fromImage(PackedPixels(QStringLiteral("icon/tesselor-%1").arg(size))));
    return icon;
}

// The plain C locale has no digit grouping, so format scores as in English.
void ChooseLocale() {
    if (QLocale::system().language() == QLocale::C) QLocale::setDefault(QLocale(QLocale::English));
}

}  // namespace

int mdlMain::Main() {
    SystemRandom random;
    ChooseLocale();
    ChooseLanguage();
    QGuiApplication::setLayoutDirection(QLocale(ChosenLanguage()).textDirection());
    QImageReader::setAllocationLimit(kPictureMegabytes);
    Look::Apply(*qApp);
    InstallAccess();
    QGuiApplication::setWindowIcon(ProgramIcon());
    if (!mdlFontSize::CheckSmallFonts()) {
        frmIcon().exec();
        return EXIT_SUCCESS;
    }
    StringStore hive(StringStore::UserFile());
    mdlRegistry::Hive(&hive);
    SoundPlayer player;
    SoundFiles soundFiles(player);
    mdlSound::Output(&player);
    RealTime time;
    MessageBoxes dialogs;
    frmGame form({time, random, dialogs, soundFiles, ProgramFolder::Find(), [] { std::_Exit(EXIT_SUCCESS); },
                  OpenAddress});
    form.show();
    Look::OpenFonts();
    const int status = QApplication::exec();
    if (time.IsBusy()) std::_Exit(status);  // a decoding thread would outlive what it uses
    return status;
}
