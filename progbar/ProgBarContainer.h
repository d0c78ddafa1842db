#pragma once

#include <string_view>

// The container of a bar. It is notified of every write that makes its stored copy of the bar stale.
class ProgBarContainer {
public:
    virtual ~ProgBarContainer() = default;

    // The property stored under `key` (a key of PropertyBag) was written, perhaps with the value it had.
    // Called after the new value is stored and, but for a caption switched off by the other, painted.
    virtual void PropertyChanged(std::string_view key) = 0;
};
