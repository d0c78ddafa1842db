#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

// A stored value with its type.
using PropertyValue = std::variant<std::int32_t, std::int16_t, std::uint8_t, bool, std::string>;

// A control's share of its container's stored design data: typed values by key.
class PropertyBag {
public:
    virtual ~PropertyBag() = default;

    // The value of `key`, or `byDefault` if there is none. A value of another type than `byDefault` may be
    // returned unchanged: the reader then uses its default.
    [[nodiscard]] virtual PropertyValue ReadProperty(std::string_view key,
                                                     const PropertyValue& byDefault) const = 0;

    // Stores `value` under `key`; it may be omitted if it equals `byDefault`, the reader's default.
    virtual void WriteProperty(std::string_view key, const PropertyValue& value,
                               const PropertyValue& byDefault) = 0;
};
