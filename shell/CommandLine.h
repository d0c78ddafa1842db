#pragma once

#include <optional>

// Handles --help and --version, on standard output and without a display, and --scale, by setting the scale
// that the application object will take. Returns the exit status if the program is to end here, as after a
// scale that is not a number from 1 to 4; otherwise nothing: the game is to start. All other arguments are
// Qt's.
[[nodiscard]] std::optional<int> AnswerCommandLine(int argc, const char* const* argv);
