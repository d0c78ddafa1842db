#pragma once

#include <QWidget>

#include "platform/controls/Control.h"
#include "progbar/ProgBar.h"
#include "screen/BarSurface.h"

// A ProgBar as a control of the window: its container, and the widget that shows its surface.
class TimeBar final : public Control<QWidget>, private ProgBarContainer {
public:
    // `stored`: the bar's saved properties.
    TimeBar(QWidget* parent, const Placement& placement, const PropertyBag& stored);

    [[nodiscard]] ProgBar& Bar() { return bar_; }
    [[nodiscard]] std::int32_t Value() const { return bar_.Value(); }
    void Value(std::int32_t value) { bar_.Value(value); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void PropertyChanged(std::string_view key) override;
    // Repaints the bar on a surface of that many device pixels.
    void FitSurface(QSize pixels);

    BarSurface surface_;
    ProgBar bar_;
    QImage shown_;  // what is on screen, to find the rows that changed
};

// The saved properties of the game's bar, prbTime: a light bar growing downwards on dark grey, no border.
class TimeBarDesign final : public PropertyBag {
public:
    [[nodiscard]] PropertyValue ReadProperty(std::string_view key,
                                             const PropertyValue& byDefault) const override;
    // The design is fixed: nothing is written back.
    void WriteProperty(std::string_view, const PropertyValue&, const PropertyValue&) override {}
};
