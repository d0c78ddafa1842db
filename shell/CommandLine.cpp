#include "shell/CommandLine.h"

#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace {

constexpr const char* kHelp =
    "Usage: tesselor [options]\n"
    "A puzzle of cards in lines, played with the keyboard or the mouse.\n\n"
    "  -h, --help     show this help and end\n"
    "  -v, --version  show the version and end\n\n"
    "Options of the Qt toolkit, such as -platform, are taken too. TESSELOR_HOME names\n"
    "another folder for skins, rules text and sound files; QT_SCALE_FACTOR=2 makes\n"
    "everything twice as large.\n";

}  // namespace

std::optional<int> AnswerCommandLine(int argc, const char* const* argv) {
    for (int i = 1; i < argc; ++i) {
        const std::string_view argument = argv[i];
        if (argument == "--help" || argument == "-h") return std::fputs(kHelp, stdout), EXIT_SUCCESS;
        if (argument == "--version" || argument == "-v")
            return std::puts("tesselor " TESSELOR_VERSION), EXIT_SUCCESS;
    }
    return std::nullopt;
}
