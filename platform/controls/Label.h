#pragma once

#include <QWidget>

#include "platform/controls/MouseControl.h"

// The label control: text in one colour on a transparent background. Not a QLabel, which lays out a whole
// document as soon as it can take the focus.
class Label : public MouseControl {
public:
    Label(QWidget* parent, const Placement& placement);

    [[nodiscard]] QString Caption() const { return caption_; }
    void Caption(const QString& caption);
    [[nodiscard]] Colour ForeColor() const { return colour_; }
    void ForeColor(Colour colour);
    void Alignment(Qt::Alignment alignment) { alignment_ = alignment; }
    void WordWrap(bool wrap) { wrap_ = wrap; }
    // A web link: underlined while the mouse is over it.
    void IsLink(bool link) { isLink_ = link; }
    // The text as painted.
    [[nodiscard]] virtual QString Shown() const { return caption_; }

    // Whether the caption fits the control in letters that can be read.
    [[nodiscard]] bool Fits() const { return Fits(ShownFont()); }

protected:
    // The font, in smaller letters when the caption would not fit otherwise, as far as it stays legible.
    [[nodiscard]] QFont ShownFont() const;

    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    [[nodiscard]] virtual bool Fits(const QFont& font) const;
    [[nodiscard]] int Flags() const;
    void Underline(bool underline);

    QString caption_;
    Qt::Alignment alignment_ = Qt::AlignLeft | Qt::AlignVCenter;
    Colour colour_ = kBlack;
    bool wrap_ = false, isLink_ = false;
};
