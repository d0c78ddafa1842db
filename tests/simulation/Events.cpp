// What may happen to the program: the player's hands, the window system, time, files and other programs.

#include <QCoreApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

#include "model/Levels.h"
#include "tests/simulation/Simulation.h"
#include "tests/support/Files.h"

namespace {

using Sim = Simulation;
using Choice = std::uint32_t;

constexpr std::array kButtons{Qt::LeftButton, Qt::LeftButton, Qt::RightButton, Qt::MiddleButton};
constexpr std::array kBoardKeys{Qt::Key_Left, Qt::Key_Up, Qt::Key_Right, Qt::Key_Down, Qt::Key_Space};
constexpr std::array kOtherKeys{Qt::Key_Tab,  Qt::Key_Tab,       Qt::Key_Backtab, Qt::Key_Return,
                                Qt::Key_Home, Qt::Key_Backspace, Qt::Key_Delete};

QPoint Anywhere(const Sim& w, Choice c) {
    return {int(c % unsigned(w.form->width())), int(c / 1024 % unsigned(w.form->height()))};
}

void DoubleClick(Sim& w, Choice c) {
    w.Click(Anywhere(w, c));
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease})
        if (w.IsOpen()) w.Mouse(type, Anywhere(w, c), Qt::LeftButton);
}

void ClickControl(Sim& w, Choice c) {
    QList<QWidget*> controls = w.form->findChildren<QWidget*>();
    controls.removeIf([](const QWidget* control) { return !control->isVisible() || !IsPressable(*control); });
    w.Click(*controls[qsizetype(c) % controls.size()]);
}

void StartDemo(Sim& w, Choice) {
    w.Click(w.form->imgButton[2]);
    if (w.IsOpen()) w.Click(w.form->cmdDemo);
}

void TypeName(Sim& w, Choice c) {
    if (!w.form->picEnterName.Visible()) return;
    w.Key(int(Qt::Key_A + c % 26));
    c % 2 ? w.Key(Qt::Key_Return) : w.Click(w.form->cmdOk);
}

void Away(Sim& w, Choice c) {
    QCoreApplication::processEvents();
    w.time.Pass(std::chrono::milliseconds(c % 5000));
}

// From a millisecond to a minute, the short times as often as the long ones.
void TimePasses(Sim& w, Choice c) {
    w.passing = true;
    w.time.Pass(std::chrono::milliseconds((1 << c % 17) + int(c / 32 % 7)));
}

QString SkinName(Choice c) {
    constexpr std::array names{"test.png", "night.png", "NIGHT.png", "a.png", "b.png", "c.png", "plain"};
    return names[c % names.size()];
}

// A good skin, one whose body is damaged, or no picture at all.
void WriteDrop(const QString& path, Choice c) {
    static const QByteArray good = [] {
        const QTemporaryDir folder;
        WriteSkin(folder.filePath("skin.png"));
        return ReadFile(folder.filePath("skin.png"));
    }();
    WriteFile(path, c % 4 == 0 ? good.left(good.size() / 2) : c % 4 == 1 ? "none" : good);
}

// Where a skin slot is, if that is on the screen; now and then a file of the skin folder itself.
void DropFile(Sim& w, Choice c) {
    const QString dropped = c % 11 ? w.outside.filePath(SkinName(c)) : w.Art(SkinName(c));
    if (c % 11) WriteDrop(dropped, c / 16);
    QMimeData files;
    files.setUrls({QUrl::fromLocalFile(dropped)});
    QWidget* target = w.form->childAt(w.CentreOf(w.form->picSkin[c / 64 % 12]));
    if (!target || !target->acceptDrops() || !target->isEnabled()) return;
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &files, Qt::LeftButton, {});
    QCoreApplication::sendEvent(target, &enter);
    QDropEvent drop({5, 5}, Qt::CopyAction, &files, Qt::LeftButton, {});
    if (enter.isAccepted()) QCoreApplication::sendEvent(target, &drop);
}

constexpr bool kPlayer = true, kWorld = false;

}  // namespace

// "play" is clicked most, and most pauses end at once, so that there is something to disturb.
const std::vector<EventKind>& EventKinds() {
    static const std::vector<EventKind> kinds{
        {"board key", 220, kPlayer, [](Sim& w, Choice c) { w.Key(kBoardKeys[c % 5]); }},
        {"held key", 15, kPlayer, [](Sim& w, Choice c) { w.Key(kBoardKeys[c % 5], int(c / 16 % 6)); }},
        {"other key", 40, kPlayer, [](Sim& w, Choice c) { w.Key(kOtherKeys[c % kOtherKeys.size()]); }},
        {"letter", 20, kPlayer, [](Sim& w, Choice c) { w.Key(int(Qt::Key_A + c % 26)); }},
        {"pause key", 2, kPlayer, [](Sim& w, Choice) { w.Key(Qt::Key_P); }},
        {"two pause keys", 6, kPlayer, [](Sim& w, Choice) { w.Key(Qt::Key_P), w.Key(Qt::Key_P); }},
        {"escape key", 1, kPlayer, [](Sim& w, Choice) { w.Key(Qt::Key_Escape); }},
        {"mouse move", 120, kPlayer,
         [](Sim& w, Choice c) { w.Mouse(QEvent::MouseMove, Anywhere(w, c), Qt::NoButton); }},
        {"press", 20, kPlayer,
         [](Sim& w, Choice c) { w.Mouse(QEvent::MouseButtonPress, Anywhere(w, c), kButtons[c % 4]); }},
        {"release", 30, kPlayer,
         [](Sim& w, Choice c) { w.Mouse(QEvent::MouseButtonRelease, Anywhere(w, c), kButtons[c % 4]); }},
        {"click on a cell", 150, kPlayer, [](Sim& w, Choice c) { w.Click(w.form->picMat[c % kCells]); }},
        {"right click", 12, kPlayer,
         [](Sim& w, Choice c) { w.Click(w.CentreOf(w.form->picMat[c % kCells]), Qt::RightButton); }},
        {"double click", 12, kPlayer, DoubleClick},
        {"play", 30, kPlayer, [](Sim& w, Choice) { w.Click(w.form->imgButton[0]); }},
        {"menu button", 12, kPlayer, [](Sim& w, Choice c) { w.Click(w.form->imgButton[c % 5]); }},
        {"level", 12, kPlayer, [](Sim& w, Choice c) { w.Click(w.form->lblClass[c % kLevels]); }},
        {"any control", 6, kPlayer, ClickControl},
        {"demonstration", 2, kPlayer, StartDemo},
        {"name", 20, kPlayer, TypeName},
        {"drop", 25, kPlayer, DropFile},
        {"time", 150, kWorld, TimePasses},
        {"look away", 8, kWorld, [](Sim& w, Choice c) { w.otherWindow.activateWindow(), Away(w, c); }},
        {"minimise", 5, kWorld, [](Sim& w, Choice c) { w.form->showMinimized(), Away(w, c); }},
        {"close", 1, kWorld, [](Sim& w, Choice) { w.form->close(); }},
        {"skin file goes", 3, kWorld, [](Sim& w, Choice c) { w.Remove(SkinName(c)); }},
        {"skin file comes", 4, kWorld, [](Sim& w, Choice c) { WriteDrop(w.Art(SkinName(c)), c / 16); }},
        {"store fails", 1, kWorld, [](Sim& w, Choice) { mdlRegistry::Hive(&w.failingStore); }},
        {"store recovers", 3, kWorld, [](Sim& w, Choice) { mdlRegistry::Hive(&w.hive); }},
        {"another game's score", 2, kWorld,
         [](Sim&, Choice c) {
             EnterHighScore({"other", "today", QLocale().toString(c >> c % 32)});
         }},
    };
    return kinds;
}
