#include "progbar/ProgBarCaption.h"

#include <string_view>
#include <vector>

namespace {

// Positions are in hundredths of the surface.
constexpr double kScale = 100;

// Splits UTF-8 text into characters. A stray continuation byte stays with the character before it.
std::vector<std::string_view> CharactersOf(std::string_view text) {
    std::vector<std::string_view> characters;
    while (!text.empty()) {
        std::size_t length = 1;
        while (length < text.size() && (text[length] & 0xC0) == 0x80) ++length;
        characters.push_back(text.substr(0, length));
        text.remove_prefix(length);
    }
    return characters;
}

void PrintCentred(DrawingSurface& surface, double y, std::string_view text) {
    surface.Print(kScale / 2 - surface.TextWidth(text) / 2, y, text);
}

void PrintAcross(DrawingSurface& surface, std::string_view caption) {
    PrintCentred(surface, (kScale - surface.TextHeight(caption)) / 2, caption);
}

void PrintDown(DrawingSurface& surface, std::string_view caption) {
    const std::vector<std::string_view> characters = CharactersOf(caption);
    double total = 0;
    for (const std::string_view c : characters) total += surface.TextHeight(c);
    double y = (kScale - total) / 2;
    for (const std::string_view c : characters) {
        PrintCentred(surface, y, c);
        y += surface.TextHeight(c);
    }
}

}  // namespace

std::string CaptionText(const ProgBarState& state) {
    std::string caption = state.ShowMessage ? state.Message : "";
    if (!state.ShowPercent && !state.ShowValue) return caption;
    if (!caption.empty()) caption += ' ';
    if (state.ShowPercent) return caption + std::to_string(state.Percent) + '%';
    return caption + std::to_string(state.Value) + '/' + std::to_string(state.Max);
}

void DrawCaption(const ProgBarState& state, DrawingSurface& surface) {
    if (!state.ShowMessage && !state.ShowPercent && !state.ShowValue) return;
    surface.UserScale(kScale, kScale);
    const std::string caption = CaptionText(state);
    if (state.VerticalText) {
        PrintDown(surface, caption);
    } else {
        PrintAcross(surface, caption);
    }
    surface.PixelScale();
}
