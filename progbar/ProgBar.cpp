#include "progbar/ProgBar.h"

#include <algorithm>
#include <utility>

#include "progbar/Rounding.h"

namespace {

// Subtracts in double precision, where nothing overflows. Only a loaded bar can have equal bounds; it counts
// as empty.
std::uint8_t PercentOf(const ProgBarState& state) {
    if (state.Max == state.Min) return 0;
    const double done = static_cast<double>(state.Value) - state.Min;
    const double range = static_cast<double>(state.Max) - state.Min;
    return static_cast<std::uint8_t>(Floor(done / range * 100));
}

std::int32_t ValueAt(const ProgBarState& state) {
    const double range = static_cast<double>(state.Max) - state.Min;
    return Floor(state.Percent / 100.0 * range + state.Min);
}

// Not std::clamp, which is undefined for min > max, as a damaged store can have it; the result is then `max`.
std::int32_t Between(std::int32_t value, std::int32_t min, std::int32_t max) {
    return std::min(std::max(value, min), max);
}

}  // namespace

ProgBar::ProgBar(DrawingSurface& surface, ProgBarContainer& container)
    : surface_{surface}, container_{container} {}

void ProgBar::Value(std::int32_t value) {
    state_.Value = Between(value, state_.Min, state_.Max);
    state_.Percent = PercentOf(state_);
    Changed({"Value", "Percent"});
}

void ProgBar::Min(std::int32_t value) {
    state_.Min = value < state_.Max ? value : Saturated(state_.Max - 1.0);
    ValueFollowsPercent();
    Changed({"Min", "Value"});
}

void ProgBar::Max(std::int32_t value) {
    state_.Max = value > state_.Min ? value : Saturated(state_.Min + 1.0);
    ValueFollowsPercent();
    Changed({"Max", "Value"});
}

void ProgBar::Percent(std::uint8_t value) {
    state_.Percent = std::min<std::uint8_t>(value, 100);
    ValueFollowsPercent();
    Changed({"Percent", "Value"});
}

void ProgBar::ShowValue(bool value) {
    state_.ShowValue = value;
    if (value) SwitchOff(state_.ShowPercent, "ShowPercent");
    Changed({"ShowValue"});
}

void ProgBar::ShowPercent(bool value) {
    state_.ShowPercent = value;
    if (value) SwitchOff(state_.ShowValue, "ShowValue");
    Changed({"ShowPercent"});
}

void ProgBar::ShowMessage(bool value) {
    Store(state_.ShowMessage, value, "ShowMessage");
}

void ProgBar::Message(std::string value) {
    Store(state_.Message, std::move(value), "Message");
}

void ProgBar::VerticalText(bool value) {
    Store(state_.VerticalText, value, "VerticalText");
}

void ProgBar::FontColour(Colour value) {
    surface_.ForeColour(value);
    Changed({"FontColour"});
}

void ProgBar::BarStyle(std::int32_t value) {
    Store(state_.BarStyle, value == kGradientBands ? kGradientBands : kSolidBar, "BarStyle");
}

void ProgBar::FillDirection(std::int32_t value) {
    const bool known = value >= kBottomToTop && value <= kLeftToRight;
    Store(state_.FillDirection, known ? value : kLeftToRight, "FillDirection");
}

void ProgBar::BorderStyle(std::int32_t value) {
    surface_.BorderStyle(static_cast<std::int16_t>(std::clamp(value, 0, 1)));
    Changed({"BorderStyle"});
}

void ProgBar::BarStartColour(Colour value) {
    Store(state_.BarStartColour, value, "BarStartColour");
}

void ProgBar::BarEndColour(Colour value) {
    Store(state_.BarEndColour, value, "BarEndColour");
}

void ProgBar::BackColour(Colour value) {
    Store(state_.BackColour, value, "BackColour");
}

void ProgBar::WaitForSound(bool value) {
    state_.WaitForSound = value;
    container_.PropertyChanged("WaitForSound");
}

void ProgBar::UserControl_InitProperties() {
    Take(StoredProperties{});
}

void ProgBar::UserControl_ReadProperties(const PropertyBag& bag) {
    Take(ReadStored(bag));
}

void ProgBar::UserControl_WriteProperties(PropertyBag& bag) const {
    WriteStored({state_, SoundToPlay, PlaySound, surface_.BorderStyle(), surface_.ForeColour()}, bag);
}

void ProgBar::UserControl_Paint() {
    painter_.Paint(state_, surface_);
}

void ProgBar::UserControl_Resize() {
    UserControl_Paint();
}

void ProgBar::Take(const StoredProperties& stored) {
    state_ = static_cast<const ProgBarState&>(stored);
    SoundToPlay = stored.SoundToPlay;
    PlaySound = stored.PlaySound;
    surface_.BorderStyle(stored.BorderStyle);
    surface_.ForeColour(stored.FontColour);
}

// Notifies before the repaint, so this key precedes that of the written property.
void ProgBar::SwitchOff(bool& caption, std::string_view key) {
    caption = false;
    container_.PropertyChanged(key);
}

void ProgBar::ValueFollowsPercent() {
    state_.Value = ValueAt(state_);
}

void ProgBar::Changed(std::initializer_list<std::string_view> keys) {
    UserControl_Paint();
    for (const std::string_view key : keys) container_.PropertyChanged(key);
}

template <class T>
void ProgBar::Store(T& property, T value, std::string_view key) {
    property = std::move(value);
    Changed({key});
}
