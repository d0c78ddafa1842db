#include "screen/Look.h"

#include <QApplication>
#include <QFontMetrics>
#include <QPalette>
#include <QProxyStyle>

namespace Look {
namespace {

struct Size {
    int pixels;
    QFont::Weight weight;
};

constexpr Size SizeOf(Text text) {
    switch (text) {
        case Text::Caption:
            return {9, QFont::Bold};
        case Text::Small:
            return {11, QFont::Normal};
        case Text::Normal:
            return {13, QFont::Normal};
        case Text::Heading:
            return {13, QFont::DemiBold};
        case Text::Number:
            return {23, QFont::Bold};
    }
    return {13, QFont::Normal};
}

// Light stone behind text, the grey-blue of the table for buttons.
QPalette Palette() {
    QPalette palette;
    const QColor ink(32, 52, 100);
    palette.setColor(QPalette::Window, QColor(0xF1, 0xEC, 0xDF));
    palette.setColor(QPalette::WindowText, ink);
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, QColor(0xF7, 0xF4, 0xEC));
    palette.setColor(QPalette::Text, ink);
    palette.setColor(QPalette::Button, QColor(0x9F, 0xB0, 0xD0));
    palette.setColor(QPalette::ButtonText, QColor(0x12, 0x1C, 0x38));
    palette.setColor(QPalette::Highlight, QColor(0x2F, 0x55, 0xA4));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::ToolTipBase, QColor(0xF1, 0xEC, 0xDF));
    palette.setColor(QPalette::ToolTipText, ink);
    palette.setColor(QPalette::PlaceholderText, QColor(0x60, 0x6C, 0x88));
    return palette;
}

class Style : public QProxyStyle {
public:
    Style() : QProxyStyle(QStringLiteral("Fusion")) {}

    // No tooltip before the last one is gone. Otherwise Qt moves that one, which Wayland does not let it.
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override {
        if (hint == SH_ToolTip_FallAsleepDelay) return 0;
        return QProxyStyle::styleHint(hint, option, widget, data);
    }
};

}  // namespace

QFont Font(Text text) {
    const Size size = SizeOf(text);
    QFont font(QString::fromLatin1(kFamily));
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(size.pixels);
    font.setWeight(size.weight);
    // Letters that are joined must not be spaced.
    if (text == Text::Caption && QGuiApplication::isLeftToRight())
        font.setLetterSpacing(QFont::AbsoluteSpacing, 1.5);
    return font;
}

void Apply(QApplication& application) {
    QApplication::setStyle(new Style);  // which Qt owns
    QApplication::setPalette(Palette());
    application.setFont(Font(Text::Normal));
}

void OpenFonts() {
    for (const Text text : {Text::Small, Text::Normal, Text::Caption, Text::Number})
        (void)QFontMetrics(Font(text)).horizontalAdvance(QStringLiteral("a1"));
}

}  // namespace Look
