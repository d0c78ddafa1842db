#pragma once

#include "platform/controls/Label.h"
#include "screen/Look.h"

// The looks shared by controls of several screens.

inline constexpr Qt::Alignment kLeft = Qt::AlignLeft | Qt::AlignVCenter;
inline constexpr Qt::Alignment kRight = Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignVCenter;  // figures

// Styles a text.
void Dress(Label& label, Look::Text text, Colour colour = Look::kLevel,
           Qt::Alignment alignment = Qt::AlignCenter);

// Styles a web link with the caption `text`.
void DressAsLink(Label& label, const QString& text);

// Gives `control` a hand cursor and a pressed look.
template <class Control>
void MakeClickable(Control& control) {
    control.setCursor(Qt::PointingHandCursor);
    control.ShowsPress(true);
}
