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
// caption over the bar. The game's one, prbTime, shows how much of the time to lock the active card is gone.
//
// Properties are pairs of overloads. A writer never refuses: it brings the value into its range, stores it,
// updates what depends on it, repaints the whole bar and tells the container the keys that changed.
class ProgBar {
public:
    // Both must outlive the bar. Nothing is painted before the first event or property write.
    ProgBar(DrawingSurface& surface, ProgBarContainer& container);
    ProgBar(const ProgBar&) = delete;
    ProgBar& operator=(const ProgBar&) = delete;

    // Where the bar stands. Value and Percent follow each other; when a bound moves, Percent is what stays.
    // All arithmetic is in double precision, rounded down.

    // Brought into Min..Max. Percent follows.
    [[nodiscard]] std::int32_t Value() const { return state_.Value; }
    void Value(std::int32_t value);

    // Stays below Max: a greater one becomes Max - 1. Value follows.
    [[nodiscard]] std::int32_t Min() const { return state_.Min; }
    void Min(std::int32_t value);

    // Stays above Min: a lesser one becomes Min + 1. Value follows.
    [[nodiscard]] std::int32_t Max() const { return state_.Max; }
    void Max(std::int32_t value);

    // The filled share, at most 100. Value follows.
    [[nodiscard]] std::uint8_t Percent() const { return state_.Percent; }
    void Percent(std::uint8_t value);

    // The caption. ShowValue and ShowPercent switch each other off when they are switched on.

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

    // Prints the caption's characters one under the other.
    [[nodiscard]] bool VerticalText() const { return state_.VerticalText; }
    void VerticalText(bool value);

    // The caption's colour; it lives in the surface.
    [[nodiscard]] Colour FontColour() const { return surface_.ForeColour(); }
    void FontColour(Colour value);

    // The look.

    // kGradientBands or kSolidBar; anything else becomes kSolidBar.
    [[nodiscard]] std::int32_t BarStyle() const { return state_.BarStyle; }
    void BarStyle(std::int32_t value);

    // kBottomToTop .. kLeftToRight; anything else becomes kLeftToRight.
    [[nodiscard]] std::int32_t FillDirection() const { return state_.FillDirection; }
    void FillDirection(std::int32_t value);

    // 0 none, 1 a line; brought into 0..1. It lives in the surface.
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

    // Kept for the container. The bar plays no sound, so none of the three repaints, and only the first,
    // which has a writer, tells the container.
    [[nodiscard]] bool WaitForSound() const { return state_.WaitForSound; }
    void WaitForSound(bool value);
    std::string SoundToPlay;
    bool PlaySound = false;

    // The container's events. A bar gets one of the first two, once, before anything else.

    // A bar is placed for the first time: everything takes its first value. Does not paint.
    void UserControl_InitProperties();
    // A stored bar is loaded: values are taken as they are, in range or not. Does not paint.
    void UserControl_ReadProperties(const PropertyBag& bag);
    // The container saves.
    void UserControl_WriteProperties(PropertyBag& bag) const;
    // Paints the whole bar; both do.
    void UserControl_Paint();
    void UserControl_Resize();

private:
    void Take(const StoredProperties& stored);
    void SwitchOff(bool& caption, std::string_view key);
    void ValueFollowsPercent();
    // The end of every write that shows: repaints, then notifies in the order given.
    void Changed(std::initializer_list<std::string_view> keys);
    // A whole write, for a property that needs no adjustment and has nothing depending on it.
    template <class T>
    void Store(T& property, T value, std::string_view key);

    DrawingSurface& surface_;
    ProgBarContainer& container_;
    ProgBarState state_;
    ProgBarPainter painter_;
};
