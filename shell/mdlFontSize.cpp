#include "shell/mdlFontSize.h"

#include <QGuiApplication>
#include <QScreen>

std::optional<std::int16_t> mdlFontSize::SystemFontHeight() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (!screen) return std::nullopt;
    const qreal height = 16 * screen->logicalDotsPerInch() / 96;
    return static_cast<std::int16_t>(qRound(qBound(1.0, height, 1000.0)));
}

bool mdlFontSize::CheckSmallFonts(std::optional<std::int16_t> height) {
    return !height || *height <= kSmallFontHeight;
}
