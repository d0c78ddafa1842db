// The window for those who do not see it or use no mouse: what assistive technology reads and is told, and
// the way of the keyboard. The platform of these tests has no desktop that could tell of a listener, so the
// toolkit's own parts are asked.

#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

#include <QAbstractEventDispatcher>
#include <QMetaEnum>

#include "tests/support/GameWindow.h"
#include "tests/support/StoreFile.h"

namespace {

using namespace std::chrono_literals;

bool Chosen(const QAccessibleInterface& it) {
    return it.state().checked || it.state().selected;
}

// A control and what it holds, a line each.
QString Read(QAccessibleInterface& it, const QString& indent = {}) {
    if (it.state().invisible) return {};
    QString text = indent + QMetaEnum::fromType<QAccessible::Role>().valueToKey(it.role()) + " \"" +
                   it.text(QAccessible::Name) + "\" " + it.text(QAccessible::Description);
    if (Chosen(it)) text += " *";
    if (it.state().disabled) text += " disabled";
    if (it.actionInterface()) text += " [" + it.actionInterface()->actionNames().join(' ') + ']';
    text += '\n';
    for (int child = 0; child < it.childCount(); ++child)
        if (it.child(child)) text += Read(*it.child(child), indent + "  ");
    return text;
}

// Where Tab leads, all the way round, and the arrows from each control on that way.
QString Ways(frmGame& form) {
    QString ways;
    form.setFocus();
    const QWidget* start = QApplication::focusWidget();
    do {
        QWidget* from = QApplication::focusWidget();
        ways += from->objectName() + ':';
        for (const Qt::Key arrow : {Qt::Key_Left, Qt::Key_Up, Qt::Key_Right, Qt::Key_Down}) {
            QTest::keyClick(from, arrow);
            ways += ' ' + QApplication::focusWidget()->objectName();
            from->setFocus();
        }
        ways += '\n';
        QTest::keyClick(from, Qt::Key_Tab);
    } while (QApplication::focusWidget() != start);
    return ways;
}

QStringList told;

void Hear(QAccessibleEvent* event) {
    const QAccessibleInterface* it = event->accessibleInterface();
    if (!it || it->state().invisible) return;
    const QString name = it->text(QAccessible::Name);
    if (event->type() == QAccessible::ObjectShow && it->role() == QAccessible::Notification) told += name;
    if (event->type() == QAccessible::Focus) told += "at " + name;
    if (event->type() == QAccessible::StateChanged && Chosen(*it)) told += "chosen " + name;
}

// Somebody listens; the controls that are made afterwards describe themselves.
struct Listener {
    Listener() {
        InstallAccess();
        QAccessible::installUpdateHandler(Hear);
        Toolkit().setActive(true);
    }
    ~Listener() {
        QAccessible::installUpdateHandler(nullptr);
        Toolkit().setActive(false);
    }
    static QPlatformAccessibility& Toolkit() {
        return *QGuiApplicationPrivate::platformIntegration()->accessibility();
    }
};

struct Spoken : testing::Test, Listener, StoreFile, GameWindow {
    Spoken() {
        form->show();
        form->activateWindow();
        QCoreApplication::processEvents();
    }
};

// TESSELOR_ACCEPT in the environment takes what is found as what is due.
TEST_F(Spoken, EveryScreenHasItsWordsAndWays) {
    QString words;
    const auto screen = [&](const QString& title) {
        words += "== " + title + '\n' + Read(*QAccessible::queryAccessibleInterface(form.get()));
        words += Ways(*form);
    };
    screen("help");
    form->imgButton_Click(1);
    screen("menu");
    PlayKinds({7, 37, 38, 16, 7, 37}, 3);
    Lock(), Key(kKeyUp), MoveTo(12);
    screen("board");
    form->lblClass_MouseMove(3, 0, 0, 0, 0);
    for (const QWidget* control : form->findChildren<QWidget*>())
        QDebug(&words).nospace() << control->objectName() << ' ' << control->geometry() << '\n';
    RightClick();
    screen("pause");
    RightClick(), LockAt(5), LockAt(6);
    Model().Score(1234567), Model().CardsUsed(99), LockAt(1);
    screen("name entry");
    form->txtName.setText("Zoë"), form->cmdOk_Click();
    screen("scores");
    const QString path = QStringLiteral(TESSELOR_WORDS);
    if (qEnvironmentVariableIsSet("TESSELOR_ACCEPT")) WriteFile(path, words.toUtf8());
    const QStringList due = QString::fromUtf8(ReadFile(path)).split('\n'), found = words.split('\n');
    for (qsizetype line = 0; line < qMax(due.size(), found.size()); ++line)
        ASSERT_EQ(found.value(line).toStdString(), due.value(line).toStdString()) << "line " << line + 1;
}

TEST_F(Spoken, NewsAreToldOnce) {
    const std::string first = "Row 3, column 1: shape 1, colour 1, quantity 1, active card",
                      second = "shape 2, colour 2, quantity 2",
                      third = "shape 3, colour 3, quantity 3, active card", start = "at Row 4, column 1: ";
    const std::string over = "Row 2, column 4: " + third + ", shaded, over " + second;
    const std::pair<std::function<void()>, std::string> steps[] = {
        {[this] {
             PlayKinds({0, 3, 6, 9, 16, 32, 36, 5}, 3), Key(kKeyUp);
         },
         "at Tesselor; chosen " + first + "; at " + first},
        {[] {}, ""},
        {[this] { LockAt(8), LockAt(9), LockAt(10), LockAt(11); },
         "chosen Row 4, column 1: " + second + ", active card; Line scored: 4,000 points.; " + start +
             second + ", active card"},
        {[this] { time.Pass(2000ms); }, "A quarter of the time bar is left."},
        {[this] {
             random.script = {7, 16, 32}, time.Pass(2000ms);
         },
         "Time is up: locked in row 2, column 4.; " + start + third},
        {[this] { MoveTo(7); }, "chosen " + over + "; at " + over},
        {[this] { RightClick(); }, "Paused."},
        {[this] { RightClick(); }, "chosen " + over + "; The game goes on.; at " + over},
        {[this] { Model().CardsUsed(99), LockAt(5); }, "at Enter Your Name; Game over. Score 4,000."},
    };
    for (const auto& [happens, due] : steps) {
        told.clear();
        happens();
        emit QAbstractEventDispatcher::instance()->aboutToBlock();
        EXPECT_EQ(told.join("; ").toStdString(), due);
    }
}

}  // namespace
