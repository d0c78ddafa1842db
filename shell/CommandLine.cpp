#include "shell/CommandLine.h"

#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "platform/language/Language.h"
#include "platform/language/Tesselor.h"

namespace {

// In the player's language, which the application object chooses for the time of this call.
void PrintHelp() {
    int arguments = 0;
    const QCoreApplication application(arguments, nullptr);
    ChooseLanguage();
    std::fputs(qUtf8Printable(Tesselor::tr(
                   "Usage: tesselor [options]\n"
                   "A single-player card puzzle.\n\n"
                   "  -h, --help     show this help and exit\n"
                   "  -v, --version  show the version and exit\n\n"
                   "Qt options such as -platform are accepted as well. Set TESSELOR_HOME to use another\n"
                   "folder for skins, rules text and sound files, and QT_SCALE_FACTOR=2 to double the\n"
                   "size of the window.\n")),
               stdout);
}

}  // namespace

std::optional<int> AnswerCommandLine(int argc, const char* const* argv) {
    for (int i = 1; i < argc; ++i) {
        const std::string_view argument = argv[i];
        if (argument == "--help" || argument == "-h") return PrintHelp(), EXIT_SUCCESS;
        if (argument == "--version" || argument == "-v")
            return std::puts("tesselor " TESSELOR_VERSION), EXIT_SUCCESS;
    }
    return std::nullopt;
}
