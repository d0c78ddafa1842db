#pragma once

#include <string_view>

// Whoever a bar is placed in. It hears of every write that makes its stored copy of the bar out of date.
class ProgBarContainer {
public:
    virtual ~ProgBarContainer() = default;

    // The property stored under `key` (a key of PropertyBag) was written, perhaps with the value it had.
    // Called after the new value is stored and, but for a caption switched off by the other, painted.
    virtual void PropertyChanged(std::string_view key) = 0;
};
