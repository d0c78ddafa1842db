#include "shell/CommandLine.h"

#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "platform/language/Language.h"
#include "platform/language/Tesselor.h"

namespace {

// Gives texts the player's language, for the time of a call that prints them.
class Speaking {
public:
    Speaking() { ChooseLanguage(); }

private:
    int arguments_ = 0;
    QCoreApplication application_{arguments_, nullptr};
};

int PrintHelp() {
    const Speaking speaking;
    std::fputs(qUtf8Printable(Tesselor::tr(
                   "Usage: tesselor [options]\n"
                   "A single-player card puzzle.\n\n"
                   "  -h, --help     show this help and exit\n"
                   "  -v, --version  show the version and exit\n"
                   "      --scale N  enlarge the window N times, from 1 to 4, such as 1.5\n\n"
                   "Qt options such as -platform are accepted as well. Set TESSELOR_HOME to use\n"
                   "another folder for skins, rules text and sound files.\n")),
               stdout);
    return EXIT_SUCCESS;
}

int RefuseScale(std::string_view given) {
    const Speaking speaking;
    const QString message =
        Tesselor::tr("tesselor: --scale takes a number from 1 to 4, such as 1.5, not \"%1\".");
    std::fprintf(stderr, "%s\n", qPrintable(message.arg(QString::fromLocal8Bit(given))));
    return 2;
}

// On top of the desktop's own scale. Returns whether `factor` is a number from 1 to 4.
bool Enlarge(std::string_view factor) {
    double value = 0;
    const auto [end, error] = std::from_chars(factor.begin(), factor.end(), value);
    return error == std::errc() && end == factor.end() && value >= 1 && value <= 4 &&
           qputenv("QT_SCALE_FACTOR", QByteArray::number(value));
}

}  // namespace

std::optional<int> AnswerCommandLine(int argc, const char* const* argv) {
    for (int i = 1; i < argc; ++i) {
        const std::string_view argument = argv[i];
        if (argument == "--help" || argument == "-h") return PrintHelp();
        if (argument == "--version" || argument == "-v")
            return std::puts("tesselor " TESSELOR_VERSION), EXIT_SUCCESS;
        std::optional<std::string_view> factor;
        if (argument == "--scale") factor = i + 1 < argc ? argv[++i] : "";
        if (argument.starts_with("--scale=")) factor = argument.substr(8);
        if (factor && !Enlarge(*factor)) return RefuseScale(*factor);
    }
    return std::nullopt;
}
