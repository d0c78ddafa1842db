#pragma once

#include <cstdint>
#include <string>

#include "progbar/ProgBarState.h"
#include "progbar/PropertyBag.h"

// Everything the container stores for a bar: its state, its two free fields and its surface's two properties.
// The initial values are the defaults of both a new bar and missing keys.
struct StoredProperties : ProgBarState {
    std::string SoundToPlay{};
    bool PlaySound = false;
    std::int16_t BorderStyle = 1;
    Colour FontColour = 0xFF0000;
};

// Reads every key once, in a fixed order. Values are not validated; a missing key or one of another type gets
// its default.
[[nodiscard]] StoredProperties ReadStored(const PropertyBag& bag);

// Writes every key once, with its default, in a fixed order.
void WriteStored(const StoredProperties& stored, PropertyBag& bag);
