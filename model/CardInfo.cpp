#include "model/CardInfo.h"

#include <cstddef>

CardKinds MakeCardKinds() {
    CardKinds kinds;
    for (std::int16_t kind = 0; kind < kCardKinds; ++kind) {
        CardInfo& card = kinds[static_cast<std::size_t>(kind / 3)][static_cast<std::size_t>(kind % 3)];
        card.Number = kind;
        if (kind > kLastOrdinaryKind) continue;  // an eraser has no attributes
        card.AttrA = kind / 12 + 1;
        card.AttrB = kind % 3 + 1;
        card.Quantity = kind / 3 % 4 + 1;
    }
    return kinds;
}
