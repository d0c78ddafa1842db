// The real desktop under the game: its message boxes, its input, and work that takes too long.

#include <qpa/qwindowsysteminterface.h>

#include <QTimer>

#include "tests/support/GameWindow.h"

namespace {

TEST(Desktop, AsksWithNoAsTheDefault) {
    for (const auto key : {Qt::Key_Return, Qt::Key_Y}) {
        QTimer::singleShot(0, [key] { QTest::keyClick(QApplication::activeModalWidget(), key); });
        EXPECT_EQ(MessageBoxes().Ask(nullptr, "question"), key == Qt::Key_Y);
    }
}

TEST(Desktop, DropsInputThatIsPending) {
    QLineEdit field;
    field.show(), field.activateWindow();
    for (const bool dropped : {true, false}) {
        for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease})
            QWindowSystemInterface::handleKeyEvent(field.windowHandle(), type, Qt::Key_X, {}, "x");
        dropped ? RealTime().DropInput() : QCoreApplication::processEvents();
        EXPECT_EQ(field.text(), dropped ? "" : "x");
    }
}

// A progressive JPEG of the largest size, grey, whose 20,000 scans of ten runs of empty blocks say nothing.
QByteArray ManyScans() {
    const auto hex = [](const char* digits) { return QByteArray::fromHex(digits); };
    const QByteArray head = hex("ffd8ffdb004300") + QByteArray(64, '\1') +
                            hex("ffc2000b080f970f9f01011100ffc400140001") + QByteArray(16, '\0') +
                            hex("ffc400141001") + QByteArray(15, '\0') + hex("e0ffda0008010100000000");
    const QByteArray scan = hex("ffda0008010100013f005554aaa95552aaa5554aaa95552aaa5554aaab");
    return head + QByteArray(40000, '\0') + scan.repeated(20'000) + hex("ffd9");
}

TEST(Desktop, GivesUpAPictureThatTakesTooLongAndStaysAlive) {
    const QTemporaryDir folder;
    WriteFile(folder.filePath("slow.jpg"), ManyScans());
    QString why;
    int ticks = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] { ++ticks; });
    timer.start(10);
    const auto load = [&] { static_cast<void>(PictureSheet::Load(folder.filePath("slow.jpg"), why)); };
    EXPECT_TRUE(RealTime().InBackground(load, std::chrono::minutes(5)));
    EXPECT_EQ(why.toStdString(), "\"slow.jpg\" takes too long to read.");
    EXPECT_GT(ticks, 10);
    EXPECT_FALSE(RealTime().InBackground([] { QThread::sleep(1); }, std::chrono::milliseconds(1)));
}

}  // namespace
