// Feeds damaged stores to the time bar and then writes its properties, on surfaces of any size: it stores
// what it loads, and another one, placed in order, keeps to its ranges.

#include <QGuiApplication>
#include <map>

#include "progbar/ProgBar.h"
#include "screen/BarSurface.h"
#include "tests/fuzz/Fuzz.h"

namespace {

// The input as a row of numbers; zeros behind its end.
class Numbers {
public:
    explicit Numbers(QByteArray bytes) : bytes_(std::move(bytes)) {}

    [[nodiscard]] bool AtEnd() const { return at_ >= bytes_.size(); }
    std::uint8_t Byte() { return AtEnd() ? std::uint8_t{0} : static_cast<std::uint8_t>(bytes_[at_++]); }
    std::int32_t Number() {
        std::uint32_t number = 0;
        for (int i = 0; i < 4; ++i) number = number << 8 | Byte();
        return static_cast<std::int32_t>(number);
    }
    std::string Text() {
        std::string text(Byte(), '\0');
        for (char& unit : text) unit = static_cast<char>(Byte());
        return text;
    }

private:
    QByteArray bytes_;
    qsizetype at_ = 0;
};

// Values by key: of any type those that are read the first time, as they were written those that were.
class Bag final : public PropertyBag {
public:
    explicit Bag(Numbers* damaged = nullptr) : damaged_(damaged) {}

    PropertyValue ReadProperty(std::string_view key, const PropertyValue& byDefault) const override {
        if (damaged_) return Any(byDefault);
        const auto found = values.find(std::string(key));
        return found == values.end() ? byDefault : found->second;
    }
    void WriteProperty(std::string_view key, const PropertyValue& value, const PropertyValue&) override {
        values[std::string(key)] = value;
    }

    std::map<std::string, PropertyValue> values;

private:
    // Mostly of the type that is asked for: the others are known to be left aside.
    [[nodiscard]] PropertyValue Any(const PropertyValue& byDefault) const {
        const unsigned kind = damaged_->Byte() % 8;
        switch (kind < 6 ? kind : byDefault.index()) {
            case 0:
                return damaged_->Number();
            case 1:
                return static_cast<std::int16_t>(damaged_->Number());
            case 2:
                return damaged_->Byte();
            case 3:
                return damaged_->Byte() % 2 != 0;
            case 4:
                return damaged_->Text();
            default:
                return byDefault;
        }
    }

    Numbers* damaged_;
};

struct Container final : ProgBarContainer {
    void PropertyChanged(std::string_view) override {}
};

// A bar on the game's own surface.
struct OneBar {
    explicit OneBar(QSize size) { surface.Resize(size, 1.5); }

    [[nodiscard]] Bag Saved() const {
        Bag bag;
        bar.UserControl_WriteProperties(bag);
        return bag;
    }

    BarSurface surface;
    Container container;
    ProgBar bar{surface, container};
};

// What a bar keeps to that was placed in order, whatever is written.
bool KeepsItsRanges(const ProgBar& bar) {
    const auto within = [](std::int32_t value, std::int32_t min, std::int32_t max) {
        return value >= min && value <= max;
    };
    return within(bar.Value(), bar.Min(), bar.Max()) && bar.Percent() <= 100 &&
           within(bar.BarStyle(), 0, 1) && within(bar.FillDirection(), 0, 3) &&
           within(bar.BorderStyle(), 0, 1) && !(bar.ShowValue() && bar.ShowPercent());
}

constexpr void (*kWrites[])(ProgBar&, Numbers&) = {
    [](ProgBar& bar, Numbers& next) { bar.Value(next.Number()); },
    [](ProgBar& bar, Numbers& next) { bar.Min(next.Number()); },
    [](ProgBar& bar, Numbers& next) { bar.Max(next.Number()); },
    [](ProgBar& bar, Numbers& next) { bar.Percent(next.Byte()); },
    [](ProgBar& bar, Numbers& next) { bar.ShowValue(next.Byte() % 2 != 0); },
    [](ProgBar& bar, Numbers& next) { bar.ShowPercent(next.Byte() % 2 != 0); },
    [](ProgBar& bar, Numbers& next) { bar.ShowMessage(next.Byte() % 2 != 0); },
    [](ProgBar& bar, Numbers& next) { bar.Message(next.Text()); },
    [](ProgBar& bar, Numbers& next) { bar.VerticalText(next.Byte() % 2 != 0); },
    [](ProgBar& bar, Numbers& next) { bar.BarStyle(next.Number()); },
    [](ProgBar& bar, Numbers& next) { bar.FillDirection(next.Number()); },
    [](ProgBar& bar, Numbers& next) { bar.BorderStyle(next.Number()); },
    [](ProgBar& bar, Numbers& next) { bar.BarStartColour(next.Number()); },
    [](ProgBar& bar, Numbers& next) { bar.BarEndColour(next.Number()); },
    [](ProgBar& bar, Numbers& next) { bar.BackColour(next.Number()); },
    [](ProgBar& bar, Numbers& next) { bar.FontColour(next.Number()); },
};

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/) {
    StartApplication<QGuiApplication>();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    Numbers numbers(Bytes(data, size));
    const int width = numbers.Byte(), height = numbers.Byte();
    OneBar loaded({width, height}), again({width, height}), placed({width, height});
    loaded.bar.UserControl_ReadProperties(Bag(&numbers));
    placed.bar.UserControl_InitProperties();
    for (int writes = 0; writes < 16; ++writes) {
        again.bar.UserControl_ReadProperties(loaded.Saved());
        Require(again.Saved().values == loaded.Saved().values);
        Require(KeepsItsRanges(placed.bar));
        const auto write = kWrites[numbers.Byte() % std::size(kWrites)];
        Numbers same = numbers;
        write(loaded.bar, numbers);
        write(placed.bar, same);
        if (numbers.AtEnd()) break;
    }
    return 0;
}
