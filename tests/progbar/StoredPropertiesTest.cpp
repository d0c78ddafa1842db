#include "progbar/StoredProperties.h"

#include "tests/progbar/Fakes.h"

TEST(StoredProperties, KeysDefaultsAndTheirTwoOrders) {
    const FakeBag empty;
    FakeBag saved;
    WriteStored(ReadStored(empty), saved);
    EXPECT_EQ(
        empty.log,
        "BackColour 16777215 BarStartColour 255 BarEndColour 0 FillDirection 3 Max 100 Message \"\" Min 0 "
        "Percent '\\0' ShowMessage false ShowPercent false ShowValue false Value 0 VerticalText false "
        "BorderStyle 1 FontColour 16711680 SoundToPlay \"\" PlaySound false BarStyle 1 WaitForSound false ");
    EXPECT_EQ(
        saved.log,
        "BackColour 16777215 BarStartColour 255 BarEndColour 0 BorderStyle 1 FillDirection 3 "
        "FontColour 16711680 Max 100 Message \"\" Min 0 Percent '\\0' ShowMessage false ShowPercent false "
        "ShowValue false Value 0 VerticalText false SoundToPlay \"\" PlaySound false BarStyle 1 "
        "WaitForSound false ");
}

TEST(StoredProperties, ABarTakesThemAsTheyAre) {
    const Values initial = PlacedBar().Saved();
    EXPECT_EQ(PlacedBar({{"Max", "many"}, {"Percent", 7}}).Saved(), initial)
        << "other types count as missing";

    Values damaged = initial;
    const Values changes{{"Min", 6},       {"Max", -5},           {"Value", 1000},     {"FillDirection", 77},
                         {"BarStyle", 9},  {"ShowPercent", true}, {"ShowValue", true}, {"PlaySound", true},
                         {"FontColour", 9}};
    for (const auto& [key, value] : changes) damaged[key] = value;
    damaged["SoundToPlay"] = "a.wav";
    damaged["BorderStyle"] = std::int16_t{-8};
    damaged["Percent"] = std::uint8_t{200};
    PlacedBar placed(damaged);
    EXPECT_EQ(placed.Saved(), damaged);
    placed.bar.UserControl_InitProperties();
    EXPECT_EQ(placed.Saved(), initial);
    EXPECT_EQ(placed.host.log, "") << "taking them neither paints nor notifies";
}
