#include "platform/Label.h"

Label::Label(QWidget* parent, const Placement& placement) : MouseControl<QLabel>(parent, placement) {
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
