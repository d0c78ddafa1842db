#pragma once

#include "platform/controls/Label.h"

// A label for text from outside the program: shown on one line whatever it holds, with an ellipsis where it
// does not fit. The caption, and what a screen reader says, stay the whole text; a tooltip shows more of it.
class LineLabel final : public Label {
public:
    using Label::Label;

    [[nodiscard]] QString Shown() const override;

protected:
    bool event(QEvent* event) override;

private:
    [[nodiscard]] QString Line() const;
    [[nodiscard]] QString Elided(const QFont& font) const;
    [[nodiscard]] QFont ShownFont() const override;
};
