#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QTest>
#include <QTimer>

#include "platform/controls/Button.h"
#include "platform/desktop/Dialogs.h"
#include "screen/Look.h"
#include "shell/frmIcon.h"
#include "shell/mdlFontSize.h"

TEST(Start, WithLargeFontsShowsANoticeThatIsClosedInAnyUsualWay) {
    using mdlFontSize::CheckSmallFonts;
    EXPECT_TRUE(CheckSmallFonts() && CheckSmallFonts({}) && CheckSmallFonts(16) && !CheckSmallFonts(17));
    frmIcon notice;
    for (const int key : {int(Qt::Key_Escape), int(Qt::Key_Return), 0}) {
        notice.show();
        key ? QTest::keyClick(&notice, Qt::Key(key)) : QTest::mouseClick(&notice.Command1, Qt::LeftButton);
        EXPECT_FALSE(notice.isVisible()) << key;
    }
}

// Whether a Chinese letter can be shown after `act`, in a process of its own as fonts are listed only once.
bool CanShowAfter(const std::function<void()>& act) {
    int status = 0;
    if (fork() == 0) act(), std::_Exit(QFontMetrics(Look::Font(Look::Text::Normal)).inFontUcs4(U'字'));
    wait(&status);
    return WIFEXITED(status) && WEXITSTATUS(status) == 1;
}

TEST(Start, ListsTheFontsOfOtherScriptsWhenATextNeedsThem) {
    const QString word = QStringLiteral("字");
    EXPECT_FALSE(CanShowAfter([] { Label(nullptr, {{}, {}, QStringLiteral("Überraschung, №\n")}); }));
    EXPECT_TRUE(CanShowAfter([&] { Label(nullptr, {{}, {}, word}); }));
    EXPECT_TRUE(CanShowAfter([&] { Label(nullptr, {}).Caption(word); }));
    EXPECT_TRUE(CanShowAfter([&] { TextBox(nullptr, {}).setText(word); }));
    EXPECT_TRUE(CanShowAfter([&] {
        TextBox name(nullptr, {});
        QInputMethodEvent composing(word, {});
        QCoreApplication::sendEvent(&name, &composing);
    }));
    EXPECT_TRUE(CanShowAfter([&] {
        QTimer::singleShot(0, [] { QApplication::activeModalWidget()->close(); });
        MessageBoxes().Tell(nullptr, word);
    }));
}
