#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

#include "progbar/Colour.h"
#include "progbar/DrawingSurface.h"
#include "progbar/ProgBarContainer.h"
#include "progbar/ProgBarPainter.h"
#include "progbar/ProgBarState.h"
#include "progbar/PropertyBag.h"
#include "progbar/StoredProperties.h"

// A self-drawn progress bar: fills its surface in proportion to Value between Min and Max, and can print a
// caption over the bar. The game's only one, prbTime, shows how much of the lock time has passed.
//
// Properties are overload pairs. A setter never fails: it clamps the value, stores it, updates dependent
// properties, repaints the whole bar and notifies the container of the changed keys.
class ProgBar {
public:
    // Both must outlive the bar. Nothing is painted before the first event or property write.
    ProgBar(DrawingSurface& surface, ProgBarContainer& container);
    ProgBar(const ProgBar&) = delete;
    ProgBar& operator=(const ProgBar&) = delete;

    // The position. Value and Percent follow each other; a change of a bound keeps Percent.
    // All arithmetic is in double precision, rounded down.

    // Clamped to Min..Max. Percent follows.
    [[nodiscard]] std::int32_t Value() const { return state_.Value; }
    void Value(std::int32_t value);

    // Must be below Max, else becomes Max - 1. Value follows.
    [[nodiscard]] std::int32_t Min() const { return state_.Min; }
    void Min(std::int32_t value);

    // Must be above Min, else becomes Min + 1. Value follows.
    [[nodiscard]] std::int32_t Max() const { return state_.Max; }
    void Max(std::int32_t value);

    // The filled share, at most 100. Value follows.
    [[nodiscard]] std::uint8_t Percent() const { return state_.Percent; }
    void Percent(std::uint8_t value);

    // The caption. Switching on ShowValue or ShowPercent switches off the other.

    // "Value/Max", after the message if that is shown.
    [[nodiscard]] bool ShowValue() const { return state_.ShowValue; }
    void ShowValue(bool value);

    // The percentage, after the message if that is shown.
    [[nodiscard]] bool ShowPercent() const { return state_.ShowPercent; }
    void ShowPercent(bool value);

    [[nodiscard]] bool ShowMessage() const { return state_.ShowMessage; }
    void ShowMessage(bool value);

    // UTF-8, any text.
    [[nodiscard]] const std::string& Message() const { return state_.Message; }
    void Message(std::string value);

    // Stacks the caption's characters vertically.
    [[nodiscard]] bool VerticalText() const { return state_.VerticalText; }
    void VerticalText(bool value);

    // The caption's colour, stored in the surface.
    [[nodiscard]] Colour FontColour() const { return surface_.ForeColour(); }
    void FontColour(Colour value);

    // The look.

    // kGradientBands or kSolidBar; anything else becomes kSolidBar.
    [[nodiscard]] std::int32_t BarStyle() const { return state_.BarStyle; }
    void BarStyle(std::int32_t value);

    // kBottomToTop .. kLeftToRight; anything else becomes kLeftToRight.
    [[nodiscard]] std::int32_t FillDirection() const { return state_.FillDirection; }
    void FillDirection(std::int32_t value);

    // 0 none, 1 a line; clamped. Stored in the surface.
    [[nodiscard]] std::int32_t BorderStyle() const { return surface_.BorderStyle(); }
    void BorderStyle(std::int32_t value);

    // Of a solid bar, or of the gradient's start.
    [[nodiscard]] Colour BarStartColour() const { return state_.BarStartColour; }
    void BarStartColour(Colour value);

    [[nodiscard]] Colour BarEndColour() const { return state_.BarEndColour; }
    void BarEndColour(Colour value);

    // Of the part not filled.
    [[nodiscard]] Colour BackColour() const { return state_.BackColour; }
    void BackColour(Colour value);

    // Stored for the container. The bar plays no sound, so none of the three repaints, and only WaitForSound
    // notifies the container.
    [[nodiscard]] bool WaitForSound() const { return state_.WaitForSound; }
    void WaitForSound(bool value);
    std::string SoundToPlay;
    bool PlaySound = false;

    // The container's events. A bar gets one of the first two, once, before all others.

    // A new bar: sets all defaults. Does not paint.
    void UserControl_InitProperties();
    // A stored bar: loads its values without validation. Does not paint.
    void UserControl_ReadProperties(const PropertyBag& bag);
    // Saves the bar.
    void UserControl_WriteProperties(PropertyBag& bag) const;
    // Both paint the whole bar.
    void UserControl_Paint();
    void UserControl_Resize();

private:
    void Take(const StoredProperties& stored);
    void SwitchOff(bool& caption, std::string_view key);
    void ValueFollowsPercent();
    // Ends every visible write: repaints, then notifies in the given order.
    void Changed(std::initializer_list<std::string_view> keys);
    // The whole setter of a property without range or dependent properties.
    template <class T>
    void Store(T& property, T value, std::string_view key);

    DrawingSurface& surface_;
    ProgBarContainer& container_;
    ProgBarState state_;
    ProgBarPainter painter_;
};
