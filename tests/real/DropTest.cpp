// Skins dropped on the real window from another program's, by the messages of a real drag.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include "tests/real/Player.h"

namespace {

class RealDrop : public testing::Test {
protected:
    RealDrop() {
        QDir(home.path()).mkdir("Art");
        for (const char* skin : {"a.png", "b.png"}) Copy(home.filePath(QString("Art/%1").arg(skin)));
        Copy(outside.filePath("new.png"));
    }
    static void Copy(const QString& to) { QFile::copy(TESSELOR_BUILD "/Art/sea.png", to); }
    [[nodiscard]] QStringList Art() const {
        return QDir(home.filePath("Art")).entryList(QDir::Files, QDir::Name);
    }

    void OpenMenu() {
        player = std::make_unique<Player>(1, home.path());
        ASSERT_TRUE(player->Window().Found());
        player->Window().MoveTo({100, 100});
        const QImage before = player->Window().Look();
        player->Click(Spot::kMenu);
        ASSERT_TRUE(player->AwaitChange(before));
    }
    // Drags `file` from the other program's window to a slot and lets it go there.
    void Drag(const QString& file, int slot) {
        source.setProcessEnvironment(player->Display().Environment());
        source.start(TESSELOR_BUILD "/tests/real/drag_source", {file});
        RealWindow from(player->Display().Name(), "Source");
        ASSERT_TRUE(from.Found());
        const QPoint target =
            player->Window().OnScreen().topLeft() + Spot::Slot(slot).center() - from.OnScreen().topLeft();
        from.MoveMouse({100, 100});
        from.Press(1);
        for (int step = 1; step <= 20; ++step)
            from.MoveMouse(QPoint(100, 100) + (target - QPoint(100, 100)) * step / 20);
        // The pointer keeps moving until the game has taken notice of what hovers over it.
        QByteArray answers;
        for (int step = 0; step < 400 && !answers.endsWith("taken\n"); ++step) {
            from.MoveMouse(target + QPoint(step % 3, 0));
            source.waitForReadyRead(50);
            answers += source.readAllStandardOutput();
        }
        EXPECT_TRUE(answers.endsWith("taken\n")) << answers.toStdString();
        from.Release(1);
    }
    bool AwaitArt(const QStringList& names) {
        return player->Window().Await([&] { return Art() == names; }, std::chrono::seconds(10));
    }
    // Answers the message box: waits for it, presses the key, and waits until it has gone.
    void Answer(const char* key) {
        RealWindow box(player->Display().Name(), "Tesselor", &player->Window());
        ASSERT_TRUE(box.Found());
        box.Focus();
        box.Key(key);
        ASSERT_TRUE(box.AwaitClosed());
    }

    QTemporaryDir home, outside;
    std::unique_ptr<Player> player;
    QProcess source;

    void TearDown() override { source.kill(), source.waitForFinished(); }
};

TEST_F(RealDrop, OntoAnEmptySlotMovesTheFile) {
    OpenMenu();
    Drag(outside.filePath("new.png"), 7);
    EXPECT_TRUE(AwaitArt({"a.png", "b.png", "new.png"}));
    EXPECT_TRUE(player->Window().Await([&] { return !QFile::exists(outside.filePath("new.png")); }));
    player->Photograph("dropped");
}

TEST_F(RealDrop, OntoAFullSlotAsks) {
    OpenMenu();
    Drag(outside.filePath("new.png"), 1);
    Answer("Escape");
    source.kill(), source.waitForFinished();
    EXPECT_EQ(Art(), QStringList({"a.png", "b.png"}));
    Drag(outside.filePath("new.png"), 1);
    Answer("Return");
    EXPECT_TRUE(AwaitArt({"a.png", "new.png"}));
}

TEST_F(RealDrop, OfABrokenPictureTellsAndOfAKnownSkinChooses) {
    QFile::resize(outside.filePath("new.png"), 1000);
    OpenMenu();
    Drag(outside.filePath("new.png"), 5);
    Answer("Return");
    EXPECT_TRUE(QFile::exists(outside.filePath("new.png")));
    source.kill(), source.waitForFinished();
    const QImage before = player->Window().Look(QRect(60, 240, 120, 80));  // the chosen skin and its name
    Drag(home.filePath("Art/b.png"), 9);
    EXPECT_TRUE(
        player->Window().Await([&] { return player->Window().Look(QRect(60, 240, 120, 80)) != before; }));
    EXPECT_EQ(Art(), QStringList({"a.png", "b.png"}));
}

}  // namespace
