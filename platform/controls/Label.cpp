#include "platform/controls/Label.h"

#include <QPainter>

#include "platform/fonts/Fonts.h"

namespace {

constexpr int kSmallestPixels = 9;

}  // namespace

Label::Label(QWidget* parent, const Placement& placement)
    : MouseControl(parent, placement), caption_(placement.caption) {
    Fonts::ListAllFor(caption_);
    access = {QAccessible::StaticText, [this] { return Caption().simplified(); }};
}

void Label::Caption(const QString& caption) {
    if (caption == caption_) return;
    caption_ = caption;
    Fonts::ListAllFor(caption_);
    update();
}

void Label::ForeColor(Colour colour) {
    if (colour == colour_) return;
    colour_ = colour;
    update();
}

// While pressed, the text is a pixel lower.
void Label::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setFont(ShownFont());
    painter.setPen(ToQColor(colour_));
    painter.drawText(rect().translated(0, IsPressed() ? 1 : 0), Flags(), Shown().remove(u'\r'));
}

int Label::Flags() const {
    return static_cast<int>(alignment_) | (wrap_ ? Qt::TextWordWrap : 0);
}

bool Label::Fits(const QFont& font) const {
    const QRect needed = QFontMetrics(font).boundingRect(rect(), Flags(), caption_.trimmed().remove(u'\r'));
    return needed.width() <= width() && (!wrap_ || needed.height() <= height());
}

QFont Label::ShownFont() const {
    QFont fitted = font();
    if (!Fits(fitted) && fitted.letterSpacingType() == QFont::AbsoluteSpacing)
        fitted.setLetterSpacing(QFont::AbsoluteSpacing, 0);
    while (fitted.pixelSize() > kSmallestPixels && !Fits(fitted)) fitted.setPixelSize(fitted.pixelSize() - 1);
    return fitted;
}

void Label::Underline(bool underline) {
    if (!isLink_) return;
    QFont font = this->font();
    font.setUnderline(underline);
    setFont(font);
}

void Label::enterEvent(QEnterEvent* /*event*/) {
    Underline(true);
}

void Label::leaveEvent(QEvent* /*event*/) {
    Underline(false);
}
