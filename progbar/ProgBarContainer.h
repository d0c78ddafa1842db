#pragma once

#include <string_view>

// The container of a bar. It is notified of every write that makes its stored copy of the bar stale.
class ProgBarContainer {
public:
    virtual ~ProgBarContainer() = default;

    // The property stored under `key` (a key of PropertyBag) was written, even if with the same value.
    // Called once the new value is stored and, except for a caption switched off by the other, painted.
    virtual void PropertyChanged(std::string_view key) = 0;
};
