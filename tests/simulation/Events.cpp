// What may happen to the program: the player's hands, the window system, time, files and other programs.

#include "model/Levels.h"
#include "tests/simulation/Simulation.h"

namespace {

using Sim = Simulation;
using std::chrono::milliseconds;
using Choice = std::uint32_t;

constexpr std::array kSomeButtons{Qt::LeftButton, Qt::LeftButton, Qt::RightButton, Qt::MiddleButton};
constexpr std::array kBoardKeys{Qt::Key_Left, Qt::Key_Up, Qt::Key_Right, Qt::Key_Down, Qt::Key_Space};
constexpr std::array kOtherKeys{Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Return, Qt::Key_Delete};

QPoint Anywhere(const Sim& w, Choice c) {
    return {int(c % unsigned(w.form->width())), int(c / 1024 % unsigned(w.form->height()))};
}

template <QTest::MouseAction action>
void Mouse(Sim& w, Choice c) {
    w.Mouse(action, Anywhere(w, c), kSomeButtons[c % 4]);
}

void ClickControl(Sim& w, Choice c) {
    QList<QWidget*> controls = w.form->findChildren<QWidget*>();
    controls.removeIf([](const QWidget* control) { return !control->isVisible() || !IsPressable(*control); });
    w.Click(*controls[qsizetype(c) % controls.size()]);
}

void TypeName(Sim& w, Choice c) {
    if (!w.form->picEnterName.Visible()) return;
    w.Key(int(Qt::Key_A + c % 26));
    c % 2 ? w.Key(Qt::Key_Return) : w.Click(w.form->cmdOk);
}

// Looks at another window, or at none.
void Away(Sim& w, Choice c) {
    c % 8 < 5 ? w.otherWindow.activateWindow() : w.form->showMinimized();
    QCoreApplication::processEvents();
    w.time.Pass(milliseconds(c % 5000));
}

QString SkinName(Choice c) {
    constexpr std::array names{"test.png", "night.png", "NIGHT.png", "a.png", "b.png", "c.png", "plain"};
    return names[c % names.size()];
}

// A good skin, one whose body is damaged, or no picture at all.
void WriteSome(const Sim& w, const QString& path, Choice c) {
    WriteFile(path, c % 4 == 0 ? w.skin.left(w.skin.size() / 2) : c % 4 == 1 ? "none" : w.skin);
}

// Where a skin slot is, if that is on the screen; now and then a file of the skin folder itself.
void DropFile(Sim& w, Choice c) {
    const QString dropped = c % 11 ? w.outside.filePath(SkinName(c)) : w.Art(SkinName(c));
    if (c % 11) WriteSome(w, dropped, c / 16);
    w.Attend();
    QWidget* target = w.form->childAt(w.form->picSkin[c / 64 % 12].mapTo(w.form.get(), QPoint(5, 5)));
    if (target && target->acceptDrops() && target->isEnabled())
        w.Drop(*target, {QUrl::fromLocalFile(dropped)});
}

}  // namespace

// Each kind by its weight. "play" is clicked most, and most pauses end at once, so that there is something to
// disturb.
rc::Gen<Script> AnyScript(int most) {
    const auto kind = rc::gen::weightedElement<EventKind>({
        {235,
         {"board key", [](Sim& w, Choice c) { w.Key(kBoardKeys[c % 5], c % 16 ? 0 : int(c / 16 % 6)); }}},
        {40, {"other key", [](Sim& w, Choice c) { w.Key(kOtherKeys[c % kOtherKeys.size()]); }}},
        {20, {"letter", [](Sim& w, Choice c) { w.Key(int(Qt::Key_A + c % 26)); }}},
        {6, {"two pause keys", [](Sim& w, Choice) { w.Key(Qt::Key_P), w.Key(Qt::Key_P); }}},
        {1, {"escape key", [](Sim& w, Choice) { w.Key(Qt::Key_Escape); }}},
        {120, {"mouse move", Mouse<QTest::MouseMove>}},
        {20, {"press", Mouse<QTest::MousePress>}},
        {30, {"release", Mouse<QTest::MouseRelease>}},
        {12, {"double click", Mouse<QTest::MouseDClick>}},
        {150, {"cell", [](Sim& w, Choice c) { w.Click(w.form->picMat[c % kCells]); }}},
        {14, {"pause", [](Sim& w, Choice) { w.Click(w.form->picMat[0], Qt::RightButton); }}},
        {30, {"play", [](Sim& w, Choice) { w.Click(w.form->imgButton[0]); }}},
        {12, {"menu button", [](Sim& w, Choice c) { w.Click(w.form->imgButton[c % 5]); }}},
        {12, {"level", [](Sim& w, Choice c) { w.Click(w.form->lblClass[c % kLevels]); }}},
        {6, {"any control", ClickControl}},
        {2, {"demo", [](Sim& w, Choice) { w.Click(w.form->imgButton[2]), w.Click(w.form->cmdDemo); }}},
        {20, {"name", TypeName}},
        {25, {"drop", DropFile}},
        // From a millisecond to a minute, the short times as often as the long ones.
        {150, {"time", [](Sim& w, Choice c) { w.time.Pass(milliseconds((1 << c % 17) + int(c / 32 % 7))); }}},
        {13, {"away", Away}},
        {1, {"close", [](Sim& w, Choice) { w.form->close(); }}},
        {3, {"skin file goes", [](Sim& w, Choice c) { w.mayGo += QFile::remove(w.Art(SkinName(c))); }}},
        {4, {"skin file comes", [](Sim& w, Choice c) { WriteSome(w, w.Art(SkinName(c)), c / 16); }}},
        {4, {"store fails", [](Sim& w, Choice c) { mdlRegistry::Hive(c % 4 ? &w.hive : &w.failingStore); }}},
        {2,
         {"other's score", [](Sim&, Choice c) { EnterHighScore({"", "", QString::number(c >> c % 32)}); }}},
    });
    const auto choice = rc::gen::noShrink(rc::gen::resize(rc::kNominalSize, rc::gen::arbitrary<Choice>()));
    return rc::gen::resize(most, rc::gen::container<Script>(rc::gen::pair(kind, choice)));
}

// Shows a script that broke something.
std::ostream& operator<<(std::ostream& out, const EventKind& kind) {
    return out << kind.name;
}
