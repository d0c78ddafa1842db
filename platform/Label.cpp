#include "platform/Label.h"

#include <QPainter>
#include <QStyle>

Label::Label(QWidget* parent, const Placement& placement) : Pressable<QLabel>(parent, placement) {
    access = {QAccessible::StaticText, [this] { return Caption().simplified(); }, {}, {}, {}};
    setTextFormat(Qt::PlainText);
    setText(placement.caption);
    ForeColor(kBlack);
}

void Label::ForeColor(Colour colour) {
    colour_ = colour;
    QPalette palette = this->palette();
    palette.setColor(QPalette::WindowText, ToQColor(colour));
    setPalette(palette);
}

// Pressed, the text stands a pixel lower.
void Label::paintEvent(QPaintEvent* event) {
    if (!IsPressed()) return QLabel::paintEvent(event);
    QPainter painter(this);
    style()->drawItemText(&painter, rect().translated(0, 1), static_cast<int>(alignment()), palette(),
                          isEnabled(), text(), foregroundRole());
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
