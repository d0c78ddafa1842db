// The window for those who do not see it or use no mouse: what assistive technology reads and is told, and
// the way of the keyboard. The platform of these tests has no desktop that could tell of a listener, so the
// toolkit's own parts are asked.

#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

#include <QAbstractEventDispatcher>
#include <QMetaEnum>
#include <QRegularExpression>

#include "platform/controls/Announce.h"
#include "screen/Look.h"
#include "shell/mdlSound.h"
#include "tests/support/GameWindow.h"
#include "tests/support/StoreFile.h"

namespace {

using namespace std::chrono_literals;

bool Chosen(const QAccessibleInterface& it) {
    return it.state().checked || it.state().selected;
}

// A control and what it holds, a line each.
QString Read(QAccessibleInterface& it, const QString& indent = {}) {
    if (it.state().invisible || it.role() == QAccessible::Notification) return {};
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
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    if (event->type() == QAccessible::Announcement)
        told += static_cast<QAccessibleAnnouncementEvent*>(event)->message();
#endif
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
        QDir(GameWindow::folder.path()).mkdir("WAV");
        WriteFile(GameWindow::folder.filePath("WAV/SPACE.wav"), "lock");
        mdlSound::Output(&sounds);
        form->show();
        form->activateWindow();
        QCoreApplication::processEvents();
    }
    ~Spoken() override { mdlSound::Output(nullptr); }

    void Step(const char* what, const std::function<void()>& happens) {
        told.clear(), sounds.heard.clear();
        happens();
        QAbstractEventDispatcher::instance()->aboutToBlock();
        for (QByteArray& wave : sounds.heard)
            for (std::int16_t number = 101; number <= 112; ++number)  // what is built in stays where it is
                if (wave.constData() == mdlSound::Wave(number).constData()) wave = QByteArray::number(number);
        record +=
            QString("-- %1\ntold: %2\nheard: ").arg(what, told.join("; ")) + sounds.heard.join(' ') + '\n';
    }
    void Screen() {
        record += Read(*QAccessible::queryAccessibleInterface(form.get())), record += Ways(*form);
        for (const Label& caption : form->lblCaption)
            if (caption.ForeColor() == Look::kLitCaption) record += "lit: " + caption.Caption() + '\n';
    }
    void Places(const QString& name = {}) {
        for (const QWidget* control : form->findChildren<QWidget*>(name))
            if (control->objectName() != "notice")  // newer Qt has no need of it
                QDebug(&record).nospace() << control->objectName() << ' ' << control->geometry() << ' '
                                          << control->toolTip() << ' ' << control->cursor().shape() << ' '
                                          << control->font().pixelSize() << control->font().weight() << '\n';
    }

    QString record;
};

// Two games and all six screens. TESSELOR_ACCEPT in the environment takes what is found as what is due.
TEST_F(Spoken, ASessionReadsLooksAndSoundsAsRecorded) {
    Step("help", [] {}), Screen();
    Step("menu", [&] { form->imgButton_Click(1); }), Screen(), Places("Shape1");
    Step("a level under the mouse, twice", [&] {
        for (int time = 0; time < 2; ++time) form->lblClass_MouseMove(3, 0, 0, 0, 0);
    });
    Step("a level and a skin", [&] { form->lblClass_Click(3), form->picSkin_MouseUp(0, 0, 0, 0, 0); });
    Places();
    Step("board", [&] { PlayKinds({0, 3, 6, 9, 16, 32, 36, 5}, 3), Key(kKeyUp); }), Screen();
    Step("nothing new", [] {});
    Step("a line", [&] { LockAt(8), LockAt(9), LockAt(10), LockAt(11); });
    Step("time passes", [&] { time.Pass(2000ms); });
    Step("a late card", [&] { random.script = {7, 16, 32}, time.Pass(2000ms); });
    Step("over a card, where none can be locked", [&] { MoveTo(7), Lock(); }), Screen();
    Step("pause", [&] { RightClick(), Lock(); }), Screen();
    Step("resume", [&] { RightClick(); });
    Step("the last card", [&] { Model().CardsUsed(99), LockAt(5); }), Screen();
    Step("scores", [&] { form->txtName.setText("Zoë"), form->cmdOk_Click(); }), Screen();
    Step("erasers", [&] { PlayKinds({7, 37, 38, 16}), Lock(), MoveTo(1), Lock(); }), Screen();
    Step("a late eraser", [&] { PlayKinds({7, 37, 16}, 3), Lock(), time.Pass(4000ms); });
    const QString path = QStringLiteral(TESSELOR_WORDS);
    if (qEnvironmentVariableIsSet("TESSELOR_ACCEPT")) WriteFile(path, record.toUtf8());
    const QStringList found = record.split('\n');
    QStringList due = QString::fromUtf8(ReadFile(path)).split('\n');
    if (kReadersFollowNames)  // a card where the last one was is not announced as well
        due.replaceInStrings(QRegularExpression("(; |told: )(Row [^;]*); at \\2"), "\\1at \\2")
            .replaceInStrings(QRegularExpression("\\. (Row [^;]*); at \\1"), ".; at \\1");
    for (qsizetype line = 0; line < qMax(due.size(), found.size()); ++line)
        ASSERT_EQ(found.value(line).toStdString(), due.value(line).toStdString()) << "line " << line + 1;
}

}  // namespace
