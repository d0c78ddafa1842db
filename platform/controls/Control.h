#pragma once

#include <QWidget>

#include "platform/controls/Access.h"
#include "platform/controls/Twips.h"
#include "platform/pictures/Colour.h"

// A Qt widget as a control of the game: named, placed in twips, with its own visibility and an accessible
// description. Positions keep the twips they were given, so calculations never see rounded values.
template <class Widget>
class Control : public Widget, public HasAccess {
public:
    Control(QWidget* parent, const Placement& placement) : Widget(parent), place_(placement.place) {
        this->setObjectName(placement.name);
        Settle();
    }

    [[nodiscard]] Twips Left() const { return place_.left; }
    [[nodiscard]] Twips Top() const { return place_.top; }
    [[nodiscard]] Twips Width() const { return place_.width; }
    [[nodiscard]] Twips Height() const { return place_.height; }
    void Left(Twips left) { place_.left = left, Settle(); }
    void Top(Twips top) { place_.top = top, Settle(); }
    void Width(Twips width) { place_.width = width, Settle(); }
    void Height(Twips height) { place_.height = height, Settle(); }

    // Whether the control itself is shown; a parent that is hidden does not count.
    [[nodiscard]] bool Visible() const { return !this->isHidden(); }
    void Visible(bool visible) { this->setVisible(visible); }
    [[nodiscard]] bool Enabled() const { return this->isEnabledTo(this->parentWidget()); }
    void Enabled(bool enabled) { this->setEnabled(enabled); }

private:
    void Settle() { this->setGeometry(place_.InPixels()); }

    TwipsRect place_;
};
