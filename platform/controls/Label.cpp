#include "platform/controls/Label.h"

#include <QPainter>

Label::Label(QWidget* parent, const Placement& placement)
    : MouseControl(parent, placement), caption_(placement.caption) {
    access = {QAccessible::StaticText, [this] { return Caption().simplified(); }};
}

void Label::Caption(const QString& caption) {
    if (caption == caption_) return;
    caption_ = caption;
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
    const int flags = static_cast<int>(alignment_) | (wrap_ ? Qt::TextWordWrap : 0);
    painter.drawText(rect().translated(0, IsPressed() ? 1 : 0), flags, Shown().remove(u'\r'));
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
