#include "screen/controls/Dressing.h"

void Dress(Label& label, Look::Text text, Colour colour, Qt::Alignment alignment) {
    label.setFont(Look::Font(text));
    label.ForeColor(colour);
    label.Alignment(alignment);
}

void DressAsLink(Label& label, const QString& text) {
    Dress(label, Look::Text::Small, Look::kLink);
    label.Caption(text);
    label.IsLink(true);
    label.access.role = QAccessible::Link;
    MakeClickable(label);
}
