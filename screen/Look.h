#pragma once

#include <QColor>
#include <QFont>

#include "platform/pictures/Colour.h"

class QApplication;

// The one look of all windows: colours, the type family and its sizes.
namespace Look {

// Colours, as 0x00BBGGRR.
inline constexpr Colour kLitCaption = 0x50FE6A;  // the highlighted menu caption
inline constexpr Colour kLevel = 0x643420;       // a level name, and the text of the light screens
inline constexpr Colour kLink = 0xC00000;        // a web link
inline constexpr Colour kTray = 0x808080;        // behind the board and the preview
inline constexpr Colour kPanel = 0xE0E0E0;       // the name entry
// The house palette.
inline constexpr Colour kNumber = 0xA8DCF4;     // score and cards left: pale brass on the stone
inline constexpr Colour kCaption = 0xA1D3E7;    // above those numbers
inline constexpr Colour kFloor = 0x2E160D;      // of the recess that holds the screens
inline constexpr Colour kWell = 0xC4D6DC;       // the recesses that hold levels and skins
inline constexpr Colour kEmptySlot = 0xD6E4EA;  // a slot without a skin
inline const QColor kBrass(0xC9, 0xA2, 0x4B), kDarkBrass(0x8A, 0x66, 0x1E);
inline const QColor kRule(0xB8, 0x9A, 0x5A);  // lines of a table, edges of keys

// The typeface of all text.
inline constexpr const char* kFamily = "Open Sans";

// A heading is as large as other text, but heavier; a caption is in spaced capitals. Sizes are in logical
// pixels; figures are tabular.
enum class Text { Caption, Small, Normal, Heading, Number };
[[nodiscard]] QFont Font(Text text);

// Style, palette and font of the application. Called once, before the first window.
void Apply(QApplication& application);

// Opens the fonts of the help screen, which the first paint would do otherwise. Called once the first window
// is shown, as the display takes about as long to put it on the screen.
void OpenFonts();

}  // namespace Look
