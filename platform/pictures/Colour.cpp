#include "platform/pictures/Colour.h"

#include <QGuiApplication>
#include <QPalette>

QColor ToQColor(Colour colour) {
    if (colour == kButtonFace) return QGuiApplication::palette().color(QPalette::Button);
    if (colour < 0) return Qt::black;
    return {colour & 0xFF, colour >> 8 & 0xFF, colour >> 16 & 0xFF};
}
