// Shows the demonstration on a display of its own and takes a picture of the window at each of its steps, as
// 000.png and so on.
//
// usage: show FOLDER [PICTURES]     100 pictures, of half a minute, when no number is given

#include <QCoreApplication>
#include <QDir>
#include <cstdio>

#include "tools/display/RealWindow.h"
#include "tools/display/Spots.h"
#include "tools/display/VirtualDisplay.h"

namespace {

using namespace std::chrono_literals;

constexpr auto kStep = 300ms;  // the demonstration's own

// Lets the game go on for that long.
void Watch(const RealWindow& window, std::chrono::milliseconds time) {
    window.Await([] { return false; }, time);
}

bool Shoot(const RealWindow& window, const QDir& folder, int number) {
    return window.Look().save(folder.filePath(QStringLiteral("%1.png").arg(number, 3, 10, QChar('0'))));
}

// Whether all the pictures could be taken.
bool ShootDemonstration(const QDir& folder, int pictures) {
    const VirtualDisplay display;
    QProcess game;
    game.setProcessEnvironment(display.Environment());
    game.setStandardErrorFile(QProcess::nullDevice());
    game.start(TESSELOR_BUILD "/tesselor", {});
    const RealWindow window(display.Name(), "Tesselor");
    bool all = window.Found();
    Watch(window, 1s);
    window.Click(Spot::kDemo.center());
    Watch(window, kStep);
    window.MoveMouse(Spot::kBackground);
    for (int number = 0; all && number < pictures; ++number) {
        Watch(window, kStep);
        all = Shoot(window, folder, number);
    }
    game.kill();
    game.waitForFinished();
    return all;
}

}  // namespace

int main(int argc, char* argv[]) {
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    if (arguments.isEmpty()) return std::fputs("usage: show FOLDER [PICTURES]\n", stderr), 2;
    const QDir folder(arguments[0]);
    const int pictures = arguments.value(1, "100").toInt();
    if (!folder.mkpath(".") || !ShootDemonstration(folder, pictures))
        return std::fputs("show: the pictures could not be taken\n", stderr), 1;
}
