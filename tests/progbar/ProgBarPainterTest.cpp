#include "progbar/ProgBarPainter.h"

#include <array>
#include <cmath>

#include "tests/progbar/Fakes.h"

// The two ends are so near each other that all bands have the start colour and only the end band is kEnd.
static constexpr Colour kBar = 0xE0E0E0, kEnd = 0xE1E0E0, kBack = 0x404040;

static ProgBarState Bar(std::int32_t style, std::int32_t direction, std::uint8_t percent) {
    ProgBarState bar{.Percent = percent, .FillDirection = direction, .BarStyle = style};
    bar.BarStartColour = kBar, bar.BarEndColour = kEnd, bar.BackColour = kBack;
    return bar;
}

// The pixels from the left or the top: # bar, e end band, - background, . kept; read along a diagonal, so
// that what does not reach from side to side shows.
static std::string Runs(FakeHost& host, int length) {
    std::map<Colour, char> names{{kBar, '#'}, {kEnd, 'e'}, {kBack, '-'}, {FakeHost::kKept, '.'}};
    std::string line, runs;
    for (int i = 0; i < length; ++i)
        line += names[length == host.columns ? host.Pixel(i, i % 5) : host.Pixel(i % 5, i)];
    for (std::size_t i = 0, end = 0; i < line.size(); i = end) {
        end = std::min(line.find_first_not_of(line[i], i), line.size());
        runs += std::to_string(end - i) + line[i];
    }
    return runs;
}

TEST(ProgBarPainter, CoversBothSidesOfTheFillLine) {
    // Style, direction, length; the runs at 0, 50, 99 and 100 percent; the bits of a pixel.
    const std::tuple<const char*, int, int, int, std::array<std::string, 4>, int> cases[] = {
        {"solid right", 1, 3, 200, {"200-", "100#100-", "198#2-", "200#"}, 24},
        {"solid left", 1, 2, 200, {"200-", "100-100#", "2-198#", "200#"}, 24},
        {"solid down, half ends in a tie", 1, 1, 263, {"263-", "132#131-", "260#3-", "263#"}, 24},
        {"solid up", 1, 0, 263, {"263-", "132-131#", "3-260#", "263#"}, 24},
        {"solid, no direction", 1, 77, 200, {"200-", "200-", "200-", "200#"}, 24},
        {"the band at the line is left out", 0, 3, 200, {"200-", "99#1.100-", "197#1.2-", "199#1e"}, 24},
        {"bands left", 0, 2, 200, {"200-", "100-1.99#", "2-1.197#", "1e199#"}, 24},
        {"bands down, the tie is past the line", 0, 1, 263, {"263-", "130#2.131-", "260#3-", "262#1e"}, 24},
        {"bands up, the tie is short of it", 0, 0, 263, {"263-", "132-131#", "3-260#", "1e262#"}, 24},
        {"bands, no direction", 0, -1, 200, {"200-", "200-", "200-", "200e"}, 24},
        {"unknown style", 9, 3, 200, {"200-", "99#1.100-", "197#1.2-", "199#1e"}, 24},
        {"32 bands, the last alone at the line", 0, 3, 200, {"200-", "94#6.100-", "194#4e2-", "194#6e"}, 15},
        {"many bands round to the end", 0, 3, 13, {"13-", "6#7-", "12#1.", "12#1."}, 24},
        {"14 / 100 * 100 > 14", 0, 3, 14, {"14-", "7#7-", "13#1.", "14#"}, 24},
    };
    constexpr std::uint8_t percents[] = {0, 50, 99, 100};
    for (const auto& [what, style, direction, length, runs, bits] : cases)
        for (std::size_t i = 0; i < runs.size(); ++i) {
            const bool down = direction == kBottomToTop || direction == kTopToBottom;
            FakeHost host(down ? 5 : length, down ? length : 5, bits);
            ProgBarPainter().Paint(Bar(style, direction, percents[i]), host);
            EXPECT_EQ(Runs(host, length), runs[i]) << what;
            EXPECT_EQ(host.log, "paint;") << "without a caption the scale is left alone";
        }
}

TEST(ProgBarPainter, GradesTowardsTheEndColour) {
    // Start, end and bits; the brushes by band, of which the one after the last is the end band's.
    const std::tuple<Colour, Colour, std::int32_t, std::map<std::size_t, Colour>> cases[] = {
        {0x0000FF, 0, 24, {{0, 255}, {1, 254}, {127, 128}, {128, 127}, {255, 0}, {256, 0}}},
        {0xFF0000, 0xFFFF, 8, {{0, 0xFF0000}, {1, 0xFB0303}, {32, 0x7F7F7F}, {63, 0x3FBFB}, {64, 0xFFFF}}},
        {0x7F000102, -1, 15, {{0, 0x102}, {32, 0xFFFFFF}}}};  // the high byte is no colour
    for (const auto& [start, end, bits, brushes] : cases) {
        FakeHost host(200, 1, bits);
        ProgBarState bar = Bar(kGradientBands, kLeftToRight, 200);  // beyond full: no band is left out
        bar.BarStartColour = start, bar.BarEndColour = end;
        ProgBarPainter().Paint(bar, host);
        ASSERT_EQ(host.brushes.size(), brushes.rbegin()->first + 1);
        for (const auto& [band, colour] : brushes) EXPECT_EQ(host.brushes[band], colour) << band;
    }
}

TEST(ProgBarPainter, MeasuresTheDepthOnce) {
    const std::int32_t cases[][4] = {{24, 1, 24, 256}, {8, 2, 16, 256}, {8, 4, 32, 256}, {15, 1, 15, 32},
                                     {1, 4, 4, 64},    {8, 1, 8, 64},   {1, 1, 4, 64},   {1 << 30, 8, 4, 64}};
    for (const auto& [bits, planes, depth, bands] : cases)
        EXPECT_EQ(MeasureDepth(bits, planes), (GradientDepth{depth, static_cast<std::int16_t>(bands)}))
            << bits;

    FakeHost host(200, 1);
    ProgBarPainter painter;
    for (host.bits = 24; host.bits > 0; host.bits -= 9)
        painter.Paint(Bar(kGradientBands, kLeftToRight, 200), host);
    EXPECT_EQ(host.brushes.size(), 3 * 257U);
}

TEST(ProgBarPainter, CopesWithAnySize) {
    for (const double size : {0.0, 0.5, 200.5, 1e300, std::nan("")})
        for (int direction = 0; direction <= 4; ++direction) {
            FakeHost host(201, 1);
            host.width = host.height = size;
            ProgBarPainter().Paint(Bar(kGradientBands, direction, 255), host);
            ProgBarPainter().Paint(Bar(kSolidBar, direction, 99), host);
            EXPECT_EQ(host.Pixel(200, 0) != FakeHost::kKept, size > 201) << size;
        }
}
