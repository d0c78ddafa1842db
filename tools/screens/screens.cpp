// Takes pictures of every screen and dialog, as <screen>@<scale>.png.
//
// usage: screens FOLDER [SCALE ...]     scales from 1 to 2; 1 when none is given

#include <QCoreApplication>
#include <QDir>
#include <cstdio>
#include <memory>

#include "platform/files/StringStore.h"
#include "tools/display/RealWindow.h"
#include "tools/display/Spots.h"
#include "tools/display/VirtualDisplay.h"

namespace {

using namespace std::chrono_literals;

constexpr QPoint kNamePanel(100, 200);  // in logical pixels
constexpr QRgb kNamePanelColour = 0xFFE0E0E0;

// The game in its window, which is found and painted; ends with this.
class Game {
public:
    // `home`: the program's folder; that of the build when empty. `shots`: where pictures go.
    Game(const VirtualDisplay& display, double scale, const QDir& shots, const QString& home = {})
        : display_(display), scale_(scale), shots_(shots) {
        QProcessEnvironment environment = display.Environment();
        environment.insert("QT_SCALE_FACTOR", QString::number(scale));
        environment.insert("LC_ALL", "C.UTF-8");
        if (!home.isEmpty()) environment.insert("TESSELOR_HOME", home);
        process_.setProcessEnvironment(environment);
        process_.setStandardErrorFile(QProcess::nullDevice());
        process_.start(TESSELOR_BUILD "/tesselor", {});
        window_ = std::make_unique<RealWindow>(display.Name(), "Tesselor");
        Settle(1s);
    }
    ~Game() { process_.kill(), process_.waitForFinished(); }
    Game(const Game&) = delete;
    Game& operator=(const Game&) = delete;

    // Lets the game draw what has been begun.
    void Settle(std::chrono::milliseconds time = 300ms) const {
        window_->Await([] { return false; }, time);
    }
    void MoveMouse(QPoint at) const { window_->MoveMouse(InDevice(at)), Settle(); }
    void Click(QPoint at, std::chrono::milliseconds time = 300ms) const {
        window_->Click(InDevice(at)), Settle(time);
    }
    void Lock(int cell) const {
        MoveMouse(Spot::Cell(cell).center()), Click(Spot::Cell(cell).center()), Settle(600ms);
    }
    [[nodiscard]] RealWindow& Window() const { return *window_; }
    [[nodiscard]] bool AsksForName() const {
        return window_->Look({InDevice(kNamePanel), QSize(1, 1)}).pixel(0, 0) == kNamePanelColour;
    }

    void Shoot(const char* screen) const { Save(*window_, screen); }
    // A picture of the second window, a dialog's.
    void ShootDialog(const char* screen) const {
        const RealWindow dialog(display_.Name(), "Tesselor", window_.get());
        Settle();
        if (dialog.Found()) Save(dialog, screen);
    }

private:
    [[nodiscard]] QPoint InDevice(QPoint at) const { return (QPointF(at) * scale_).toPoint(); }
    void Save(const RealWindow& window, const char* screen) const {
        window.Look().save(shots_.filePath(QStringLiteral("%1@%2.png").arg(screen).arg(scale_)));
    }

    const VirtualDisplay& display_;
    double scale_;
    QDir shots_;
    QProcess process_;
    std::unique_ptr<RealWindow> window_;
};

// The scores of four players, where the games on `display` look for them.
void WriteScores(const VirtualDisplay& display) {
    qputenv("XDG_CONFIG_HOME", display.Environment().value("XDG_CONFIG_HOME").toUtf8());
    StringStore hive(StringStore::UserFile());
    const QStringList rows[] = {{"Ada", "11/24/2026", "1,013,290"},
                                {"Maximiliane", "12/31/2025", "48,200"},
                                {"Wu", "3/8/2026", "9,450"},
                                {"Edmund", "10/2/2026", "0"}};
    for (int row = 0; row < 4; ++row) {
        const QString name = QString::number(row);
        hive.SetString("Software\\Tesselor\\Name", name, rows[row][0]);
        hive.SetString("Software\\Tesselor\\Date", name, rows[row][1]);
        hive.SetString("Software\\Tesselor\\Score", name, rows[row][2]);
    }
}

void ShootScreens(const Game& game) {
    game.MoveMouse(Spot::kBackground);
    game.Shoot("help");
    game.MoveMouse(Spot::kPlay.center());
    game.Shoot("key-hovered");
    game.Window().Press(1);
    game.Settle();
    game.Shoot("key-pressed");
    game.MoveMouse(Spot::kBackground);  // and is not clicked
    game.Window().Release(1);
    game.Click(Spot::kMenu.center());
    game.Click(Spot::Level(1).center());
    game.MoveMouse(Spot::kBackground);
    game.Shoot("levels");
    game.MoveMouse(Spot::Level(3).center());
    game.Window().Press(1);
    game.Settle();
    game.Shoot("level-pressed");
    game.MoveMouse(Spot::kBackground);
    game.Window().Release(1);
    game.Click(Spot::kScore.center());
    game.MoveMouse(Spot::kBackground);
    game.Shoot("scores");
    game.Window().Focus();
    game.Window().Key("Tab");
    game.Settle();
    game.Shoot("keyboard");
}

void ShootBoard(const Game& game) {
    game.Click(Spot::kPlay.center());
    for (const int cell : {5, 10, 3, 0, 9, 6}) game.Lock(cell);
    game.MoveMouse(Spot::Cell(1).center());
    game.Shoot("board");
    game.MoveMouse(Spot::Cell(10).center());
    game.Shoot("card-over-card");
    game.Window().Key("p");
    game.Settle(1500ms);
    game.Shoot("pause");
}

// Locks cards wherever they go until a game ends with points.
void ShootNameEntry(const Game& game) {
    for (int lock = 0; lock < 400 && !game.AsksForName(); ++lock) {
        if (lock % 80 == 0) game.Click(Spot::kPlay.center());
        game.Click(Spot::Cell(lock % 16).center(), 150ms);
    }
    game.Settle(1500ms);
    if (game.AsksForName()) game.Shoot("name-entry");
}

void ShootDialogs(const VirtualDisplay& display, double scale, const QDir& shots) {
    {
        const Game game(display, scale, shots);
        game.Click(Spot::kMore.center());
        game.ShootDialog("information");
    }
    const QTemporaryDir empty;
    const Game withoutSkins(display, scale, shots, empty.path());
    withoutSkins.Click(Spot::kPlay.center());
    withoutSkins.ShootDialog("message");
}

void ShootAll(double scale, const QDir& shots) {
    const VirtualDisplay display;
    WriteScores(display);
    {
        const Game game(display, scale, shots);
        ShootScreens(game);
        ShootBoard(game);
    }
    {
        const Game game(display, scale, shots);
        ShootNameEntry(game);
    }
    ShootDialogs(display, scale, shots);
}

}  // namespace

int main(int argc, char* argv[]) {
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName("Tesselor");
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    if (arguments.isEmpty()) return std::fputs("usage: screens FOLDER [SCALE ...]\n", stderr), 2;
    const QDir shots(arguments[0]);
    if (!shots.mkpath(".")) return std::fputs("screens: the folder cannot be made\n", stderr), 1;
    QStringList scales = arguments.mid(1);
    if (scales.isEmpty()) scales.append("1");
    for (const QString& scale : scales) ShootAll(qBound(1.0, scale.toDouble(), 2.0), shots);
}
