// Random sessions of a bar beside a second reading of its rules: writes in any order, damaged stores,
// surfaces of any size and depth. After every step both must agree on what is stored, on what the surface and
// the container were told in which order, and on every pixel at each of those moments.

#include "progbar/ProgBar.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <map>
#include <random>

namespace {

using Limits = std::numeric_limits<std::int32_t>;

const std::string kDefaults =
    "BackColour 16777215 BarEndColour 0 BarStartColour 255 BarStyle 1 BorderStyle 1 FillDirection 3 "
    "FontColour 16711680 Max 100 Message \"\" Min 0 Percent '\\0' PlaySound false ShowMessage false "
    "ShowPercent false ShowValue false SoundToPlay \"\" Value 0 VerticalText false WaitForSound false ";

// A value as a number, a text as its place in the list; and a number as a value of the type at `index`.
const std::vector<std::string> kTexts{"", "Go", "%\xC3\xA9", "\x80x\x80"};
struct Number {
    double operator()(const std::string& text) const {
        return static_cast<double>(std::ranges::find(kTexts, text) - kTexts.begin());
    }
    double operator()(std::int32_t number) const { return number; }
};
PropertyValue Typed(int number, std::size_t index) {
    return std::array<PropertyValue, 5>{number, static_cast<std::int16_t>(number),
                                        static_cast<std::uint8_t>(number), number % 2 != 0,
                                        kTexts[static_cast<unsigned>(number) % 4]}
        .at(index);
}

int Rounded(double value) {
    if (std::isnan(value)) return 0;
    return static_cast<int>(std::clamp<double>(std::nearbyint(value), Limits::min(), Limits::max()));
}

// Surface, container and store of a bar. Of the pixels there may be more or fewer than the surface has.
// Bytes are 4 units wide, characters 10 units high, "%" 12.
struct Host : DrawingSurface, ProgBarContainer, PropertyBag {
    int columns, rows;
    std::vector<Colour> pixels{};
    std::vector<std::pair<std::string, std::vector<Colour>>> told{};  // each with the picture at that moment
    double width = 0, height = 0, unit = 10;                          // until a paint sets the scale
    std::int32_t bits = 0, planes = 0;
    Colour foreColour = 0;
    std::int16_t borderStyle = 0;
    mutable std::map<std::string, PropertyValue, std::less<>> defaults{}, stored{};
    std::map<std::string, double> written{};

    explicit Host(bool upright) : columns(upright ? 3 : 280), rows(upright ? 280 : 3) {}
    Colour ForeColour() const override { return foreColour; }
    void ForeColour(Colour colour) override { foreColour = colour; }
    std::int16_t BorderStyle() const override { return borderStyle; }
    void BorderStyle(std::int16_t style) override { borderStyle = style; }
    double Width() const override { return width; }
    double Height() const override { return height; }
    std::int32_t BitsPerPixel() const override { return bits; }
    std::int32_t Planes() const override { return planes; }
    void FillRect(const Rect& area, Colour colour) override {
        const int bottom = std::min({area.bottom, rows, Rounded(height)});
        const int left = std::max(area.left, 0), right = std::min({area.right, columns, Rounded(width)});
        for (int y = std::max(area.top, 0); y < bottom; ++y)
            for (int x = left; x < right; ++x) pixels.at(static_cast<unsigned>(y * columns + x)) = colour;
    }
    void UserScale(double w, double h) override { PropertyChanged("scale"), unit = w * h / 10000; }
    void PixelScale() override { PropertyChanged("pixels"), unit = 10; }
    double TextWidth(std::string_view text) const override {
        return 4 * static_cast<double>(text.size()) * unit;
    }
    double TextHeight(std::string_view text) const override { return (text.ends_with('%') ? 12 : 10) * unit; }
    void Print(double x, double y, std::string_view text) override {
        pixels[0] = -2;
        PropertyChanged(std::to_string(x) + ' ' + std::to_string(y) + ' ' + std::string(text));
    }
    void PropertyChanged(std::string_view key) override { told.emplace_back(key, pixels); }
    PropertyValue ReadProperty(std::string_view key, const PropertyValue& byDefault) const override {
        const auto known = stored.find(key);
        return defaults.emplace(key, byDefault), known == stored.end() ? byDefault : known->second;
    }
    void WriteProperty(std::string_view key, const PropertyValue& value,
                       const PropertyValue& byDefault) override {
        EXPECT_EQ(byDefault, defaults.find(key)->second);
        written[std::string(key)] = std::visit(Number(), value);
    }
};

// All values as numbers, and the host as a bar should leave it.
struct Rules : Host {
    std::map<std::string, double> now{};
    int bands = 0;

    using Host::Host;
    double Adjusted(const std::string& key, double given) {
        if (key == "Value") return std::min(std::max(given, now["Min"]), now["Max"]);
        if (key == "Min") return std::min(given, std::max<double>(now["Max"] - 1, Limits::min()));
        if (key == "Max") return std::max(given, std::min<double>(now["Min"] + 1, Limits::max()));
        if (key == "Percent") return std::min(given, 100.0);
        if (key == "BarStyle") return given != 0;
        if (key == "BorderStyle") return given > 0;
        return key == "FillDirection" && (given < 0 || given > 3) ? 3 : given;
    }
    void Write(const std::string& key, double given) {
        now[key] = Adjusted(key, given);
        const double range = now["Max"] - now["Min"];
        const bool bound = key == "Min" || key == "Max" || key == "Percent";
        if (key == "Value")
            now["Percent"] = range == 0 ? 0 : std::floor((now[key] - now["Min"]) / range * 100);
        if (bound) now["Value"] = Rounded(std::floor(now["Percent"] / 100 * range + now["Min"]));
        const std::string other = key == "ShowValue" ? "ShowPercent" : "ShowValue";
        if (key.starts_with("Show") && key != "ShowMessage" && given != 0)
            now[other] = 0, PropertyChanged(other);
        if (key != "WaitForSound") Paint();
        PropertyChanged(key);
        if (bound || key == "Value") PropertyChanged(bound ? "Value" : "Percent");
    }
    void Paint() {
        const double depth = 1.0 * bits * planes;
        if (bands == 0) bands = depth == 15 ? 32 : depth == 16 || depth == 24 || depth == 32 ? 256 : 64;
        const bool across = now["FillDirection"] > 1;
        const int length = Rounded(across ? width : height);
        for (int at = 0; at < std::min(length, across ? columns : rows); ++at)
            FillRect(across ? Rect{at, 0, at + 1, rows} : Rect{0, at, columns, at + 1}, ColourAt(at, length));
        if (now["ShowMessage"] + now["ShowPercent"] + now["ShowValue"] > 0) PrintCaption();
    }
    // Of a pixel by its distance from the left or the top; -1 where none is painted.
    Colour ColourAt(int at, double length) {
        const auto colour = [&](const char* key) { return static_cast<Colour>(now[key]) & 0xFFFFFF; };
        const double direction = now["FillDirection"], filled = length / 100 * now["Percent"];
        const bool known = direction >= 0 && direction <= 3, back = direction == 0 || direction == 2;
        const double line = back ? length - filled : filled;
        const bool empty = !known || back == (at < Rounded(line));
        if (empty && now["Percent"] < 100) return colour("BackColour");
        if (now["BarStyle"] == 1) return empty && known ? -1 : colour("BarStartColour");

        // The slot of the pixel counts from the left or the top, the band there from where the bar starts.
        const auto edge = [&](int slot) { return Rounded(length * slot / bands); };
        const auto shown = [&](int slot) { return back ? edge(slot) > line : edge(slot + 1) < line; };
        const int last = bands - 1;
        int slot = 0;
        while (slot < last && edge(slot + 1) <= at) ++slot;
        const int band = back ? last - slot : slot;
        if (!known || (band == last && shown(back ? 1 : last - 1))) return colour("BarEndColour");
        const auto mixed = [&](int unit) {
            const auto part = [&](const char* key) { return colour(key) / unit % 256; };
            const double start = part("BarStartColour"), end = part("BarEndColour");
            return unit * static_cast<int>(start + (end - start) / bands * band);
        };
        return shown(slot) ? mixed(1) + mixed(256) + mixed(65536) : -1;
    }
    void PrintCaption() {
        UserScale(100, 100);
        const auto digits = [&](const char* key) { return std::to_string(static_cast<int>(now[key])); };
        const auto on = [&](const char* key) { return now[key] != 0; };
        const bool share = on("ShowPercent"), value = on("ShowValue"), down = on("VerticalText");
        std::string text = on("ShowMessage") ? kTexts[static_cast<std::size_t>(now["Message"])] : "";
        if ((share || value) && !text.empty()) text += ' ';
        text += share ? digits("Percent") + '%' : value ? digits("Value") + '/' + digits("Max") : "";
        std::vector<std::string> parts(down ? 0 : 1);
        for (const char c : text)
            (parts.empty() || (down && (c & 0xC0) != 0x80) ? parts.emplace_back() : parts.back()) += c;
        double y = 50;
        for (const std::string& part : parts) y -= TextHeight(part) / 2;
        for (const std::string& part : parts) Print(50 - TextWidth(part) / 2, y, part), y += TextHeight(part);
        PixelScale();
    }
};

template <class T>
std::function<void(ProgBar&, const PropertyValue&)> Writer(void (ProgBar::*write)(T)) {
    return [write](ProgBar& bar, const PropertyValue& given) { (bar.*write)(std::get<T>(given)); };
}
#define KEY(key) std::pair(std::string(#key), Writer(&ProgBar::key))
const std::vector kWriters{
    KEY(Value),       KEY(Min),           KEY(Max),         KEY(Percent),        KEY(ShowValue),
    KEY(ShowPercent), KEY(ShowMessage),   KEY(Message),     KEY(VerticalText),   KEY(FontColour),
    KEY(BarStyle),    KEY(FillDirection), KEY(BorderStyle), KEY(BarStartColour), KEY(BarEndColour),
    KEY(BackColour),  KEY(WaitForSound)};

}  // namespace

TEST(ProgBar, KeepsItsRulesInRandomSessions) {
    for (unsigned seed = 1; seed <= 100; ++seed) {
        std::mt19937 dice(seed);
        const auto oneOf = [&](const auto& list) { return list[dice() % std::size(list)]; };
        const auto number = [&] {
            const int any = static_cast<int>(dice()), plain = any / 8 % 110;
            return oneOf(std::array{Limits::min(), Limits::min() + 1, Limits::max() - 1, Limits::max(), any,
                                    29, plain, plain, any % 6, any % 4, any % 2, any % 2, 97 + any % 4,
                                    97 + any % 4});
        };
        Host host(seed % 2 == 0);
        Rules rules(seed % 2 == 0);
        ProgBar bar(host, host);
        bar.UserControl_ReadProperties(host);
        std::string defaults;
        for (const auto& [key, value] : host.defaults) {
            const auto print = [](const auto& typed) { return testing::PrintToString(typed); };
            defaults += key + ' ' + std::visit(print, value) + ' ';
            rules.now[key] = std::visit(Number(), value);
        }
        ASSERT_EQ(defaults, kDefaults);
        for (int step = 0; step < 100; ++step) {
            const double any = static_cast<double>(dice() % 600) / 2;
            const std::array sizes{any,   any,   any,   13.0, 14.0,  263.0,
                                   200.0, 200.0, 200.0, -2.0, 1e300, std::nan("")};
            host.width = oneOf(sizes), host.height = oneOf(sizes);
            host.bits = oneOf(std::array{24, 32, 15, 8, 4, 1, 0, (1 << 29) + 3});
            host.planes = oneOf(std::array{1, 1, 2, 4, 8});
            host.pixels.assign(840, -1), host.told.clear(), host.stored.clear(), host.written.clear();
            static_cast<Host&>(rules) = host;

            const auto& [key, write] = oneOf(kWriters);
            SCOPED_TRACE(testing::Message() << "seed " << seed << ", step " << step << ", perhaps " << key);
            const PropertyValue given =
                Typed(number(), key == "BorderStyle" ? 0 : host.defaults.at(key).index());
            const auto event = dice() % 16;
            for (const auto& [name, value] : host.defaults) {
                if (event > 1) break;
                const std::size_t type = dice() % 8 == 0 ? dice() % 5 : value.index();
                if (event == 0 && dice() % 2 == 0) host.stored[name] = Typed(number(), type);
                const bool taken = host.stored.contains(name) && type == value.index();
                rules.now[name] = std::visit(Number(), taken ? host.stored[name] : value);
            }
            if (event == 0) bar.UserControl_ReadProperties(host);
            if (event == 1) bar.UserControl_InitProperties();
            if (event == 2) bar.UserControl_Paint(), rules.Paint();
            if (event == 3) bar.UserControl_Resize(), rules.Paint();
            if (event > 3) write(bar, given), rules.Write(key, std::visit(Number(), given));
            bar.UserControl_WriteProperties(host);
            ASSERT_EQ(host.written, rules.now);
            ASSERT_EQ(host.told, rules.told);
            ASSERT_EQ(host.pixels, rules.pixels);
        }
    }
}
