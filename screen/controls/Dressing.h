#pragma once

#include "platform/controls/Label.h"
#include "screen/Look.h"

// The looks that controls of several screens share.

inline constexpr Qt::Alignment kLeft = Qt::AlignLeft | Qt::AlignVCenter;
inline constexpr Qt::Alignment kRight = Qt::AlignRight | Qt::AlignVCenter;

// A text in one of the sizes.
void Dress(Label& label, Look::Text text, Colour colour = Look::kLevel,
           Qt::Alignment alignment = Qt::AlignCenter);

// A web link that reads `text`.
void DressAsLink(Label& label, const QString& text);

// A control that answers a click, and shows it.
template <class Control>
void MakeClickable(Control& control) {
    control.setCursor(Qt::PointingHandCursor);
    control.ShowsPress(true);
}
