#pragma once

#include <array>
#include <functional>
#include <utility>

#include "screen/Design.h"

class QWidget;

// The holder of each element of a control array.
using Holders = std::function<QWidget*(int index)>;

// A control array: `N` controls called `name`, each at its designed place. The elements are built in place,
// since controls can neither be copied nor moved.
template <class ControlType, std::size_t N, class... More>
std::array<ControlType, N> ControlArray(const char* name, const Holders& holder, More... more) {
    return [&]<std::size_t... I>(std::index_sequence<I...>) {
        return std::array<ControlType, N>{
            ControlType(holder(static_cast<int>(I)), Design(name, static_cast<int>(I)), more...)...};
    }
    (std::make_index_sequence<N>());
}
