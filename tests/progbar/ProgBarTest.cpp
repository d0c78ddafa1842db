#include "progbar/ProgBar.h"

#include <array>
#include <limits>

#include "tests/progbar/Fakes.h"

static constexpr std::int32_t kLow = std::numeric_limits<std::int32_t>::min();
static constexpr std::int32_t kHigh = std::numeric_limits<std::int32_t>::max();

TEST(ProgBar, ValueBoundsAndPercentFollowEachOther) {
    using Standing = std::array<std::int32_t, 4>;  // Min, Max, Value, Percent
    const auto value = [](ProgBar& bar, int given) { bar.Value(given); };
    const auto min = [](ProgBar& bar, int given) { bar.Min(given); };
    const auto max = [](ProgBar& bar, int given) { bar.Max(given); };
    const auto percent = [](ProgBar& bar, int given) { bar.Percent(static_cast<std::uint8_t>(given)); };
    const std::tuple<const char*, Standing, void (*)(ProgBar&, int), int, Standing> cases[] = {
        {"below Min", {0, 100, 40, 40}, value, -5, {0, 100, 0, 0}},
        {"above Max", {0, 100, 40, 40}, value, 250, {0, 100, 100, 100}},
        {"33.3 %", {0, 3, 0, 0}, value, 1, {0, 3, 1, 33}},
        {"0.29 * 100 < 29", {0, 100, 40, 40}, value, 29, {0, 100, 29, 28}},
        {"half of -3", {-3, 0, 0, 0}, percent, 50, {-3, 0, -2, 50}},
        {"255 %", {0, 100, 40, 40}, percent, 255, {0, 100, 100, 100}},
        {"a bound moves Value", {0, 100, 40, 40}, max, 200, {0, 200, 80, 40}},
        {"Min at Max", {0, 100, 40, 40}, min, 100, {99, 100, 99, 40}},
        {"Max at Min", {10, 100, 0, 40}, max, 10, {10, 11, 10, 40}},
        {"widest", {kLow, kHigh, 0, 0}, value, -1, {kLow, kHigh, -1, 49}},
        {"widest, full", {kLow, kHigh, 0, 0}, percent, 100, {kLow, kHigh, kHigh, 100}},
        {"stored equal bounds", {5, 5, 0, 70}, value, 7, {5, 5, 5, 0}},
        {"stored crossed bounds", {10, 5, 0, 0}, value, 7, {10, 5, 5, 100}},
        {"no room below", {0, kLow, 0, 9}, min, 3, {kLow, kLow, kLow, 9}},
        {"no room above", {kHigh, 0, 0, 9}, max, 3, {kHigh, kHigh, kHigh, 9}},
        {"stored 200 %", {0, 1, 0, 200}, max, kHigh, {0, kHigh, kHigh, 200}},
    };
    for (const auto& [what, before, write, given, after] : cases) {
        const auto share = static_cast<std::uint8_t>(before[3]);
        PlacedBar placed({{"Min", before[0]}, {"Max", before[1]}, {"Value", before[2]}, {"Percent", share}});
        ProgBar& bar = placed.bar;
        write(bar, given);
        EXPECT_EQ((Standing{bar.Min(), bar.Max(), bar.Value(), bar.Percent()}), after) << what;
    }
}

// One write to a bar whose style and direction are stored out of range. `stored`: what the container then
// finds under `key`; `steps`: what the host sees of the write, a repaint and the key unless given.
template <class T>
static void ExpectWrite(void (ProgBar::*write)(T), T given, const std::string& key,
                        const PropertyValue& stored, const std::string& steps = "") {
    PlacedBar placed({{"BarStyle", 5}, {"FillDirection", 5}});
    (placed.bar.*write)(given);
    EXPECT_EQ(placed.host.log, steps.empty() ? "paint;" + key + ';' : steps);
    EXPECT_EQ(placed.Saved()[key], stored) << key;
}

TEST(ProgBar, AWriteAdjustsStoresPaintsAndNotifiesInThisOrder) {
    using B = ProgBar;
    ExpectWrite(&B::Value, 7, "Value", 7, "paint;Value;Percent;");
    ExpectWrite(&B::Min, 7, "Min", 7, "paint;Min;Value;");
    ExpectWrite(&B::Max, 7, "Max", 7, "paint;Max;Value;");
    ExpectWrite<std::uint8_t>(&B::Percent, 7, "Percent", std::uint8_t{7}, "paint;Percent;Value;");
    ExpectWrite(&B::ShowMessage, true, "ShowMessage", true, "paint;scale;50,45 ;pixels;ShowMessage;");
    ExpectWrite(&B::ShowValue, true, "ShowValue", true,
                "ShowPercent;paint;scale;40,45 0/100;pixels;ShowValue;");
    ExpectWrite(&B::ShowPercent, true, "ShowPercent", true,
                "ShowValue;paint;scale;45,44 0%;pixels;ShowPercent;");
    ExpectWrite(&B::WaitForSound, true, "WaitForSound", true, "WaitForSound;");
    ExpectWrite(&B::VerticalText, true, "VerticalText", true);
    ExpectWrite<std::string>(&B::Message, "Go", "Message", "Go");
    ExpectWrite(&B::FontColour, 7, "FontColour", 7);
    ExpectWrite(&B::BarStartColour, 7, "BarStartColour", 7);
    ExpectWrite(&B::BarEndColour, 7, "BarEndColour", 7);
    ExpectWrite(&B::BackColour, 7, "BackColour", 7);
    for (const auto& [given, stored] : {std::pair{0, 0}, {-1, 1}, {7, 1}})
        ExpectWrite(&B::BarStyle, given, "BarStyle", stored);
    for (const auto& [given, stored] : {std::pair{0, 0}, {-1, 3}, {4, 3}})
        ExpectWrite(&B::FillDirection, given, "FillDirection", stored);
    for (const auto& [given, stored] : {std::pair<std::int32_t, std::int16_t>{-5, 0}, {9, 1}})
        ExpectWrite(&B::BorderStyle, given, "BorderStyle", stored);
}

TEST(ProgBar, ValueAndPercentCaptionsExcludeEachOther) {
    PlacedBar placed;
    ProgBar& bar = placed.bar;
    bar.ShowPercent(true), bar.ShowValue(false);
    EXPECT_TRUE(bar.ShowPercent());
    bar.ShowValue(true), bar.ShowPercent(false);
    EXPECT_TRUE(bar.ShowValue() && !bar.ShowPercent());
    bar.ShowPercent(true);
    EXPECT_FALSE(bar.ShowValue());
    placed.host.log.clear();
    bar.UserControl_Resize();
    EXPECT_EQ(placed.host.log, "paint;scale;45,44 0%;pixels;");
}
