#pragma once

#include <QString>

// Takes the first of the desktop's languages that the program has, for its own texts and for Qt's; English if
// it has none. Called once, before the first text. Needs an application object, but no window system.
void ChooseLanguage();

// The language chosen, such as "de" or "pt_BR".
[[nodiscard]] QString ChosenLanguage();
