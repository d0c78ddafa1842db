#pragma once

#include <cstdint>
#include <string>

#include "progbar/ProgBarState.h"
#include "progbar/PropertyBag.h"

// All that the container stores of a bar: its state, its two free fields and its surface's two properties.
// The first values are at once those of a newly placed bar and the defaults of keys that are not stored.
struct StoredProperties : ProgBarState {
    std::string SoundToPlay{};
    bool PlaySound = false;
    std::int16_t BorderStyle = 1;
    Colour FontColour = 0xFF0000;
};

// Reads every key once, in the order stores have always been read. Values are taken unchecked; a missing key
// or one of another type gives its default.
[[nodiscard]] StoredProperties ReadStored(const PropertyBag& bag);

// Writes every key once, with its default, in the order stores have always been written.
void WriteStored(const StoredProperties& stored, PropertyBag& bag);
