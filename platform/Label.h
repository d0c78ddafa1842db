#pragma once

#include <QLabel>

#include "platform/Control.h"

// The label control: text in one colour on whatever lies behind it.
class Label : public MouseControl<QLabel> {
public:
    Label(QWidget* parent, const Placement& placement);

    [[nodiscard]] QString Caption() const { return text(); }
    void Caption(const QString& caption) { setText(caption); }
    [[nodiscard]] Colour ForeColor() const { return colour_; }
    void ForeColor(Colour colour);

private:
    Colour colour_ = kBlack;
};
