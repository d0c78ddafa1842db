#include "model/Lines.h"

#include <gtest/gtest.h>

static CardInfo Card(int attrA, int attrB, int quantity) {
    return {0, attrA, attrB, quantity};
}

TEST(Lines, CountSharedElements) {
    struct Case {
        const char* what;
        LineCards line;
        int shared;
    };
    const Case cases[] = {
        {"equal AttrB only", {Card(1, 2, 4), Card(2, 2, 2), Card(3, 2, 3), Card(1, 2, 1)}, 1},
        {"equal AttrA only", {Card(3, 2, 4), Card(3, 1, 2), Card(3, 2, 3), Card(3, 2, 1)}, 1},
        {"equal AttrB and Quantity", {Card(1, 3, 2), Card(2, 3, 2), Card(3, 3, 2), Card(1, 3, 2)}, 2},
        {"four of one kind", {Card(1, 3, 2), Card(1, 3, 2), Card(1, 3, 2), Card(1, 3, 2)}, 3},
        {"rising series", {Card(1, 2, 1), Card(2, 2, 2), Card(1, 1, 3), Card(3, 2, 4)}, 1},
        {"falling series in one AttrB", {Card(1, 2, 4), Card(2, 2, 3), Card(1, 2, 2), Card(3, 2, 1)}, 2},
        {"1 2 4 3 is no series", {Card(1, 1, 1), Card(2, 1, 2), Card(3, 2, 4), Card(1, 3, 3)}, 0},
        {"two pairs share nothing", {Card(1, 1, 1), Card(1, 1, 1), Card(2, 2, 2), Card(2, 2, 2)}, 0},
        {"a gap completes nothing", {Card(1, 1, 1), Card(1, 1, 1), CardInfo(), Card(1, 1, 1)}, 0},
        {"nor does it end a series", {Card(1, 2, 1), Card(2, 2, 2), Card(1, 1, 3), CardInfo()}, 0},
    };
    for (const Case& c : cases) EXPECT_EQ(SharedElements(c.line), c.shared) << c.what;
}
