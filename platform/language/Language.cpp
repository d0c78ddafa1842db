#include "platform/language/Language.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace {

QTranslator& Own() {
    static QTranslator own;
    return own;
}

}  // namespace

void ChooseLanguage() {
    static QTranslator toolkit;
    // English has a file too: otherwise a second language of the desktop would win over English as the first.
    if (!Own().load(QLocale::system(), QStringLiteral("tesselor"), QStringLiteral("_"),
                    QStringLiteral(":/translations")))
        (void)Own().load(QStringLiteral(":/translations/tesselor_en"));
    QCoreApplication::installTranslator(&Own());
    const QLocale language(Own().language());
    // Qt's own translations, and ours of its buttons in languages that it lacks.
    for (const QString& folder :
         {QLibraryInfo::path(QLibraryInfo::TranslationsPath), QStringLiteral(":/translations")})
        if (toolkit.load(language, QStringLiteral("qtbase"), QStringLiteral("_"), folder)) break;
    QCoreApplication::installTranslator(&toolkit);
}

QString ChosenLanguage() {
    return Own().language();
}
