#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <sstream>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "progbar/ProgBar.h"

// Surface and container of one bar. Characters are 4 units wide, "%" 6; they are 10 high, "%" 12, and with
// the pixel scale ten times that.
struct FakeHost : DrawingSurface, ProgBarContainer {
    static constexpr Colour kKept = -1;  // pixels never painted

    FakeHost(int columns, int rows, std::int32_t bits = 24)
        : columns(columns), width(columns), height(rows), bits(bits) {
        pixels.assign(static_cast<std::size_t>(columns * rows), kKept);
    }

    Colour ForeColour() const override { return foreColour; }
    void ForeColour(Colour colour) override { foreColour = colour; }
    std::int16_t BorderStyle() const override { return borderStyle; }
    void BorderStyle(std::int16_t style) override { borderStyle = style; }
    double Width() const override { return width; }
    double Height() const override { return height; }
    std::int32_t BitsPerPixel() const override { return bits; }
    std::int32_t Planes() const override { return 1; }
    void FillRect(const Rect& area, Colour colour) override {
        if (!log.ends_with("paint;")) log += "paint;";
        brushes.push_back(colour);
        for (int i = 0; i < static_cast<int>(pixels.size()); ++i) {
            const int x = i % columns, y = i / columns;
            if (x >= area.left && x < area.right && y >= area.top && y < area.bottom) Pixel(x, y) = colour;
        }
    }
    void UserScale(double w, double h) override { unit = w * h / 10000, log += "scale;"; }
    void PixelScale() override { unit = 10, log += "pixels;"; }
    double TextWidth(std::string_view text) const override {
        const auto starts = std::ranges::count_if(text, [](char c) { return (c & 0xC0) != 0x80; });
        return static_cast<double>(4 * starts + 2 * std::ranges::count(text, '%')) * unit;
    }
    double TextHeight(std::string_view text) const override { return (text.ends_with('%') ? 12 : 10) * unit; }
    void Print(double x, double y, std::string_view text) override {
        log += (std::ostringstream() << x << ',' << y << ' ' << text << ';').str();
    }
    void PropertyChanged(std::string_view key) override { log += std::string(key) + ';'; }

    Colour& Pixel(int x, int y) { return pixels[static_cast<std::size_t>(y * columns + x)]; }

    int columns;
    double width, height, unit = 10;
    std::int32_t bits;
    Colour foreColour = 0;
    std::int16_t borderStyle = 0;
    std::string log;  // paints, texts and notifications in their order; fills in a row are one paint
    std::vector<Colour> pixels, brushes;
};

using Values = std::map<std::string, PropertyValue>;

// A store; `log` tells which keys were asked for, with which defaults.
struct FakeBag : PropertyBag {
    explicit FakeBag(Values stored = {}) : values(std::move(stored)) {}

    PropertyValue ReadProperty(std::string_view key, const PropertyValue& byDefault) const override {
        Note(key, byDefault);
        const auto found = values.find(std::string(key));
        return found == values.end() ? byDefault : found->second;
    }
    void WriteProperty(std::string_view key, const PropertyValue& value,
                       const PropertyValue& byDefault) override {
        Note(key, byDefault);
        values[std::string(key)] = value;
    }
    void Note(std::string_view key, const PropertyValue& byDefault) const {
        const auto print = [](const auto& value) { return testing::PrintToString(value); };
        log += std::string(key) + ' ' + std::visit(print, byDefault) + ' ';
    }

    Values values;
    mutable std::string log;
};

// A bar loaded from a store of its own.
struct PlacedBar {
    explicit PlacedBar(const Values& stored = {}) { bar.UserControl_ReadProperties(FakeBag(stored)); }
    Values Saved() const {
        FakeBag bag;
        bar.UserControl_WriteProperties(bag);
        return bag.values;
    }

    FakeHost host{200, 1};
    ProgBar bar{host, host};
};
