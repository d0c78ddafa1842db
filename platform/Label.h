#pragma once

#include <QLabel>

#include "platform/Pressable.h"

// The label control: text in one colour on whatever lies behind it.
class Label : public Pressable<QLabel> {
public:
    Label(QWidget* parent, const Placement& placement);

    [[nodiscard]] QString Caption() const { return text(); }
    void Caption(const QString& caption) { setText(caption); }
    [[nodiscard]] Colour ForeColor() const { return colour_; }
    void ForeColor(Colour colour);
    // A web link: underlined while the mouse is over it.
    void IsLink(bool link) { isLink_ = link; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    void Underline(bool underline);

    bool isLink_ = false;
    Colour colour_ = kBlack;
};
