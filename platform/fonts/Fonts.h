#pragma once

#include <QString>

// Which of the desktop's fonts Qt knows. Qt lists them all before it draws its first letter, which on a
// desktop with thousands costs more than all else at the start, while most players never see a letter that
// the game's own family lacks.
namespace Fonts {

// Hides all but one family from Qt until the rest is needed; hides none if that family is not installed.
// Called once, before the application object or while another thread makes it.
void ListOnly(const char* family);

// Lists them all, once, if the text has a letter that the family lacks. Called before a text that may come
// from the player or a translation is shown; window's thread.
void ListAllFor(const QString& text);

}  // namespace Fonts
