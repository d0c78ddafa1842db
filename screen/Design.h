#pragma once

#include "platform/Twips.h"

// Where every control of the game window was designed to stand, by name: the one table of positions.

// The control `name`; `index` for a member of a control array. A name without a row is our mistake
// (asserted).
[[nodiscard]] Placement Design(const char* name, int index = -1);
