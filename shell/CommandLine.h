#pragma once

#include <optional>

// Handles --help and --version, on standard output and without a display. Returns the exit status if one of
// them was given, otherwise nothing: the game is to start. All other arguments are Qt's.
[[nodiscard]] std::optional<int> AnswerCommandLine(int argc, const char* const* argv);
