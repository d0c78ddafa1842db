#include "progbar/StoredProperties.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <variant>

namespace {

using Stored = StoredProperties;
using Field = std::variant<std::int32_t Stored::*, std::int16_t Stored::*, std::uint8_t Stored::*,
                           bool Stored::*, std::string Stored::*>;

struct StoredKey {
    std::string_view key;
    Field field;
};

constexpr std::array<StoredKey, 19> kKeysAsRead{{
    {"BackColour", &Stored::BackColour},
    {"BarStartColour", &Stored::BarStartColour},
    {"BarEndColour", &Stored::BarEndColour},
    {"FillDirection", &Stored::FillDirection},
    {"Max", &Stored::Max},
    {"Message", &Stored::Message},
    {"Min", &Stored::Min},
    {"Percent", &Stored::Percent},
    {"ShowMessage", &Stored::ShowMessage},
    {"ShowPercent", &Stored::ShowPercent},
    {"ShowValue", &Stored::ShowValue},
    {"Value", &Stored::Value},
    {"VerticalText", &Stored::VerticalText},
    {"BorderStyle", &Stored::BorderStyle},
    {"FontColour", &Stored::FontColour},
    {"SoundToPlay", &Stored::SoundToPlay},
    {"PlaySound", &Stored::PlaySound},
    {"BarStyle", &Stored::BarStyle},
    {"WaitForSound", &Stored::WaitForSound},
}};

constexpr std::array<std::string_view, kKeysAsRead.size()> kKeysAsWritten{
    "BackColour",  "BarStartColour", "BarEndColour", "BorderStyle", "FillDirection", "FontColour",
    "Max",         "Message",        "Min",          "Percent",     "ShowMessage",   "ShowPercent",
    "ShowValue",   "Value",          "VerticalText", "SoundToPlay", "PlaySound",     "BarStyle",
    "WaitForSound"};

template <class T>
T Read(const PropertyBag& bag, std::string_view key, const T& byDefault) {
    const PropertyValue value = bag.ReadProperty(key, byDefault);
    const T* typed = std::get_if<T>(&value);
    return typed != nullptr ? *typed : byDefault;
}

}  // namespace

StoredProperties ReadStored(const PropertyBag& bag) {
    StoredProperties stored;
    for (const StoredKey& row : kKeysAsRead) {
        std::visit([&](auto field) { stored.*field = Read(bag, row.key, stored.*field); }, row.field);
    }
    return stored;
}

void WriteStored(const StoredProperties& stored, PropertyBag& bag) {
    const StoredProperties initial;
    for (const std::string_view key : kKeysAsWritten) {
        const Field& member = std::ranges::find(kKeysAsRead, key, &StoredKey::key)->field;
        std::visit([&](auto field) { bag.WriteProperty(key, stored.*field, initial.*field); }, member);
    }
}
