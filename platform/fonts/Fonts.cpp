#include "platform/fonts/Fonts.h"

#include <fontconfig/fontconfig.h>

#include <QApplication>
#include <QFile>
#include <QFontDatabase>
#include <QWidget>
#include <algorithm>
#include <utility>

namespace {

// One of the family that is listed alone; none once all are listed.
FcPattern* theFont = nullptr;

const FcChar8* Text(const char* text) {
    return reinterpret_cast<const FcChar8*>(text);
}

// The desktop's own settings, such as hinting, with all other families rejected.
FcConfig* Only(const char* family) {
    FcConfig* config = FcInitLoadConfig();
    const QByteArray rule =
        QByteArray(R"(<fontconfig><selectfont><rejectfont><pattern/></rejectfont><acceptfont>
        <pattern><patelt name="family"><string>)") +
        family + "</string></patelt></pattern></acceptfont></selectfont></fontconfig>";
    FcConfigParseAndLoadFromMemory(config, Text(rule.constData()), FcTrue);
    FcConfigBuildFonts(config);
    return config;
}

void Use(FcConfig* config) {
    FcConfigSetCurrent(config);
    FcConfigDestroy(config);
}

bool CanShow(const QString& text) {
    FcCharSet* letters = nullptr;
    FcPatternGetCharSet(theFont, FC_CHARSET, 0, &letters);
    return std::ranges::all_of(text.toUcs4(), [letters](char32_t letter) {
        return !QChar::isPrint(letter) || FcCharSetHasChar(letters, letter);
    });
}

// Qt lists the fonts again when one that a program has added goes.
void ListAgain() {
    FcChar8* file = nullptr;
    FcPatternGetString(theFont, FC_FILE, 0, &file);
    const QString name = QFile::decodeName(reinterpret_cast<const char*>(file));
    QFontDatabase::removeApplicationFont(QFontDatabase::addApplicationFont(name));
    for (QWidget* widget : QApplication::allWidgets()) {
        QEvent change(QEvent::FontChange);
        QCoreApplication::sendEvent(widget, &change);
    }
}

}  // namespace

void Fonts::ListOnly(const char* family) {
    FcConfig* config = Only(family);
    const FcFontSet* fonts = FcConfigGetFonts(config, FcSetSystem);
    if (!fonts || fonts->nfont == 0) return FcConfigDestroy(config);
    theFont = fonts->fonts[0];
    FcPatternReference(theFont);
    Use(config);
}

void Fonts::ListAllFor(const QString& text) {
    if (!theFont || CanShow(text)) return;
    Use(FcInitLoadConfigAndFonts());
    ListAgain();
    FcPatternDestroy(std::exchange(theFont, nullptr));
}
