#include <gtest/gtest.h>

#include <QApplication>

#include "platform/fonts/Fonts.h"
#include "platform/language/Language.h"
#include "screen/Look.h"

// Window tests run under one application, with the look and the number format of an English desktop, and
// screens of all usual scales.
int main(int argc, char* argv[]) {
    qputenv("LANGUAGE", "en");
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" TESSELOR_SCREENS);
    QApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    testing::InitGoogleTest(&argc, argv);
    Fonts::ListOnly(Look::kFamily);
    QApplication application(argc, argv);
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    ChooseLanguage();
    Look::Apply(application);
    return RUN_ALL_TESTS();
}
