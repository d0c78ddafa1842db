#pragma once

#include "platform/controls/Label.h"

// A label for text from outside the program: always one line, elided if it does not fit. The caption and the
// accessible name stay the whole text; a tooltip shows more of it.
class LineLabel final : public Label {
public:
    using Label::Label;

    [[nodiscard]] QString Shown() const override;

protected:
    bool event(QEvent* event) override;

private:
    [[nodiscard]] QString Line() const;
    [[nodiscard]] QString Elided(const QFont& font) const;
    [[nodiscard]] bool Fits(const QFont& font) const override;
};
