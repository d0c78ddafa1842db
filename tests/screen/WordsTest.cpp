// The window for those who do not see it or use no mouse: what assistive technology reads and is told, and
// the way of the keyboard.

#include <gtest/gtest.h>

#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>
#include <QAbstractEventDispatcher>
#include <QAccessible>
#include <QMetaEnum>
#include <QTest>

#include "tests/support/Files.h"
#include "tests/support/GameWindow.h"
#include "tests/support/StoreFile.h"

namespace {

using namespace std::chrono_literals;

// A control and what it holds, a line each: "Role name (description) states value".
QString Read(QAccessibleInterface& it, int depth = 0) {
    const QAccessible::State state = it.state();
    if (state.invisible) return {};
    QString line(2 * depth, ' ');
    line += QMetaEnum::fromType<QAccessible::Role>().valueToKey(it.role());
    for (const auto& [format, text] :
         {std::pair(" \"%1\"", it.text(QAccessible::Name)), {" (%1)", it.text(QAccessible::Description)}})
        if (!text.isEmpty()) line += QString(format).arg(QString(text).replace("\r\n", "|"));
    for (const auto& [word, holds] :
         {std::pair(" checked", bool(state.checked)),
          {" selected", bool(state.selected)},
          {" disabled", bool(state.disabled)},
          {" pressable", it.actionInterface() && it.actionInterface()->actionNames().contains(
                                                     QAccessibleActionInterface::pressAction())}})
        if (holds) line += word;
    if (it.valueInterface()) line += ' ' + it.valueInterface()->currentValue().toString() + '%';
    line += '\n';
    for (int child = 0; child < it.childCount(); ++child)
        if (it.child(child)) line += Read(*it.child(child), depth + 1);
    return line;
}

// Where Tab leads from the window itself, all the way round, and the arrows from each control on that way.
QString Ways(frmGame& form) {
    QString ways;
    form.setFocus();
    const QWidget* start = QApplication::focusWidget();
    do {
        QWidget* from = QApplication::focusWidget();
        ways += from->objectName();
        for (const Qt::Key arrow : {Qt::Key_Left, Qt::Key_Up, Qt::Key_Right, Qt::Key_Down}) {
            QTest::keyClick(from, arrow);
            ways +=
                from == QApplication::focusWidget() ? " -" : ' ' + QApplication::focusWidget()->objectName();
            from->setFocus();
        }
        ways += '\n';
        QTest::keyClick(from, Qt::Key_Tab);
    } while (QApplication::focusWidget() != start);
    return ways;
}

// Somebody listens; the controls that are made afterwards describe themselves.
struct Listener {
    Listener() {
        InstallAccess();
        Listen(true);
    }
    ~Listener() { Listen(false); }
    // The toolkit finds out about listeners from the desktop; the windowless platform has none.
    static void Listen(bool active) {
        QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(active);
    }
};

struct Spoken : testing::Test, Listener, StoreFile, GameWindow {
    Spoken() {
        form->show();
        form->activateWindow();
        QCoreApplication::processEvents();
    }
};

TEST_F(Spoken, EveryScreenHasItsWordsAndWays) {
    QString words;
    const auto screen = [&](const QString& title) {
        words += "== " + title + '\n' + Read(*QAccessible::queryAccessibleInterface(form.get()));
    };
    screen("help"), words += Ways(*form);
    form->imgButton_Click(1);
    screen("menu"), words += Ways(*form);
    form->lblClass_Click(3);
    PlayKinds({7, 37, 38, 16, 7, 37}, 3);
    Lock(), Key(kKeyUp);
    screen("board"), words += Ways(*form);
    Key(kKeyDown), RightClick();
    screen("pause");
    RightClick(), LockAt(5), LockAt(6);
    Model().Score(1234567), Model().CardsUsed(99), LockAt(1);
    screen("name entry"), words += Ways(*form);
    form->txtName.setText("Zoë"), form->cmdOk_Click();
    screen("scores"), words += Ways(*form);
    const QString path = QStringLiteral(TESSELOR_WORDS);
    if (qEnvironmentVariableIsSet("TESSELOR_ACCEPT")) WriteFile(path, words.toUtf8());
    const QStringList due = QString::fromUtf8(ReadFile(path)).split('\n'), found = words.split('\n');
    for (qsizetype line = 0; line < qMax(due.size(), found.size()); ++line)
        ASSERT_EQ(found.value(line).toStdString(), due.value(line).toStdString())
            << path.toStdString() << ", line " << line + 1;
}

QStringList told;

void Hear(QAccessibleEvent* event) {
    QAccessibleInterface* about = event->accessibleInterface();
    if (!about || about->state().invisible) return;
    const QString name = about->text(QAccessible::Name);
    if (event->type() == QAccessible::ObjectShow && about->role() == QAccessible::Notification) told += name;
    if (event->type() == QAccessible::Focus) told += "at " + name;
    if (event->type() == QAccessible::StateChanged)
        told += (about->state().checked || about->state().selected ? "on " : "off ") + name;
    if (event->type() == QAccessible::ValueChanged)
        told += name + ' ' + about->valueInterface()->currentValue().toString();
}

TEST_F(Spoken, NewsAreToldOnce) {
    QAccessible::installUpdateHandler(Hear);
    const auto row = [this] {
        for (const int cell : {0, 1, 2, 3}) LockAt(cell);
    };
    const std::string first = "shape 1, colour 1, quantity 1, active card",
                      second = "shape 2, colour 2, quantity 2",
                      third = "shape 3, colour 3, quantity 3, active card";
    const std::string over = third + ", shaded, over " + second;
    const std::pair<std::function<void()>, std::string> steps[] = {
        {[this] {
             PlayKinds({0, 3, 6, 9, 16, 32, 36, 5}, 3);
         },
         "at Tesselor; on Row 4, column 1: " + first + "; at Row 4, column 1: " + first},
        {[] {}, ""},
        {[this] { Key(kKeyUp); },
         "on Row 3, column 1: " + first + "; off Row 4, column 1: empty; at Row 3, column 1: " + first},
        {row, "off Row 3, column 1: empty; on Row 4, column 1: " + second +
                  ", active card; Line scored: 4,000 points.; at Row 4, column 1: " + second +
                  ", active card"},
        {[this] { time.Pass(2000ms); }, "Time used 78; A quarter of the time bar is left."},
        {[this] {
             random.script = {7, 16, 32}, time.Pass(2000ms);
         },
         "Time used 6; Time is up: locked in row 2, column 4.; at Row 4, column 1: " + third},
        {[this] { MoveTo(7); },
         "on Row 2, column 4: " + over + "; off Row 4, column 1: empty; at Row 2, column 4: " + over},
        {[this] { RightClick(); }, "Time used 0; off Row 2, column 4: covered; Paused."},
        {[this] { RightClick(); },
         "on Row 2, column 4: " + over + "; The game goes on.; at Row 2, column 4: " + over},
        {[this] { Model().CardsUsed(99), LockAt(5); },
         "at Enter Your Name; off play; off menu; off help; off score; off Row 2, column 4: covered; "
         "Game over. Score 4,000."},
    };
    for (const auto& [happens, due] : steps) {
        told.clear();
        happens();
        emit QAbstractEventDispatcher::instance()->aboutToBlock();
        EXPECT_EQ(told.join("; ").toStdString(), due);
    }
    QAccessible::installUpdateHandler(nullptr);
}

}  // namespace
