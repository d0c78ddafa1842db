// Feeds damaged stores to the time bar and then writes its properties, on surfaces of any size: it keeps to
// the ranges it promises, paints nothing but colours, and stores what it loads.

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

// The game's own surface, and what it is asked to paint.
class CheckedSurface final : public DrawingSurface {
public:
    void Resize(QSize size, qreal scale) { surface_.Resize(size, scale); }

    Colour ForeColour() const override { return surface_.ForeColour(); }
    void ForeColour(Colour colour) override { surface_.ForeColour(colour); }
    std::int16_t BorderStyle() const override { return surface_.BorderStyle(); }
    void BorderStyle(std::int16_t style) override { surface_.BorderStyle(style); }
    double Width() const override { return surface_.Width(); }
    double Height() const override { return surface_.Height(); }
    std::int32_t BitsPerPixel() const override { return surface_.BitsPerPixel(); }
    std::int32_t Planes() const override { return surface_.Planes(); }
    void FillRect(const Rect& area, Colour colour) override {
        Require(colour >= 0 && colour <= 0xFFFFFF);
        surface_.FillRect(area, colour);
    }
    void UserScale(double width, double height) override { surface_.UserScale(width, height); }
    void PixelScale() override { surface_.PixelScale(); }
    double TextWidth(std::string_view text) const override { return surface_.TextWidth(text); }
    double TextHeight(std::string_view text) const override { return surface_.TextHeight(text); }
    void Print(double x, double y, std::string_view text) override { surface_.Print(x, y, text); }

private:
    BarSurface surface_;
};

struct Container final : ProgBarContainer {
    void PropertyChanged(std::string_view) override { ++changes; }
    int changes = 0;
};

Bag Saved(const ProgBar& bar) {
    Bag bag;
    bar.UserControl_WriteProperties(bag);
    return bag;
}

void RequireStored(const ProgBar& bar) {
    const Bag saved = Saved(bar);
    CheckedSurface surface;
    Container container;
    ProgBar other(surface, container);
    other.UserControl_ReadProperties(saved);
    Require(Saved(other).values == saved.values);
}

bool IsBetween(const ProgBar& bar) {
    return bar.Min() > bar.Max() || (bar.Value() >= bar.Min() && bar.Value() <= bar.Max());
}

// Whether it is 0 .. count - 1.
bool IsOneOf(std::int32_t value, std::int32_t count) {
    return value >= 0 && value < count;
}

// Writes one property and looks at what it promises.
void Write(ProgBar& bar, Numbers& numbers) {
    switch (numbers.Byte() % 16) {
        case 0:
            bar.Value(numbers.Number());
            return Require(IsBetween(bar) && bar.Percent() <= 100);
        case 1:
            bar.Min(numbers.Number());
            return Require(bar.Min() <= bar.Max());
        case 2:
            bar.Max(numbers.Number());
            return Require(bar.Min() <= bar.Max());
        case 3:
            bar.Percent(numbers.Byte());
            return Require(IsBetween(bar) && bar.Percent() <= 100);
        case 4:
            bar.ShowValue(true);
            return Require(!bar.ShowPercent());
        case 5:
            bar.ShowPercent(true);
            return Require(!bar.ShowValue());
        case 6:
            return bar.ShowMessage(numbers.Byte() % 2 != 0);
        case 7:
            return bar.Message(numbers.Text());
        case 8:
            return bar.VerticalText(numbers.Byte() % 2 != 0);
        case 9:
            return bar.FontColour(numbers.Number());
        case 10:
            bar.BarStyle(numbers.Number());
            return Require(IsOneOf(bar.BarStyle(), 2));
        case 11:
            bar.FillDirection(numbers.Number());
            return Require(IsOneOf(bar.FillDirection(), 4));
        case 12:
            bar.BorderStyle(numbers.Number());
            return Require(IsOneOf(bar.BorderStyle(), 2));
        case 13:
            return bar.BarStartColour(numbers.Number());
        case 14:
            return bar.BarEndColour(numbers.Number());
        default:
            return bar.BackColour(numbers.Number());
    }
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/) {
    StartApplication<QGuiApplication>();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    Numbers numbers(Bytes(data, size));
    CheckedSurface surface;
    Container container;
    ProgBar bar(surface, container);
    const int width = numbers.Byte(), height = numbers.Byte();
    surface.Resize({width, height}, 1 + numbers.Byte() % 5 / 2.0);
    bar.UserControl_ReadProperties(Bag(&numbers));
    bar.UserControl_Paint();
    RequireStored(bar);
    for (int writes = 0; writes < 16 && !numbers.AtEnd(); ++writes) {
        const int before = container.changes;
        Write(bar, numbers);
        Require(container.changes > before);
    }
    RequireStored(bar);
    return 0;
}
