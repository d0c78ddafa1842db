#pragma once

#include <optional>

// What the command line asks for besides a game: --help and --version, answered on standard output without a
// display. Returns the exit status when one of them was asked; otherwise the program is to start. Everything
// else on the command line is the toolkit's.
[[nodiscard]] std::optional<int> AnswerCommandLine(int argc, const char* const* argv);
