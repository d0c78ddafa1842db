// A skin on its way into the folder when the game is killed or the disk fails it.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>

#include "tests/faults/Traced.h"

namespace {

// The skin "new.png" outside, and "old.png" in the folder, which it is to replace.
class Move {
public:
    Move() {
        QDir(root.path()).mkdir("Art");
        Write("new.png", 3);
        Write("Art/old.png", 200);
        fresh = Bytes("new.png");
        old = Bytes("Art/old.png");
    }
    [[nodiscard]] QStringList Arguments() const {
        return {root.filePath("new.png"), root.filePath("Art"), "old.png"};
    }
    [[nodiscard]] QByteArray Bytes(const QString& name) const {
        QFile file(root.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    // Whether each of the two is whole in one of its places; the old one may go when the new one is in.
    [[nodiscard]] bool NothingIsLost() const {
        const bool isIn = Bytes("Art/new.png") == fresh;
        return (isIn || Bytes("new.png") == fresh) && (isIn || Bytes("Art/old.png") == old) &&
               (isIn || !QFile::exists(root.filePath("Art/new.png")));
    }

    QTemporaryDir root;
    QByteArray fresh, old;

private:
    void Write(const QString& name, int red) const {
        QImage sheet(30, 130, QImage::Format_RGB32);
        sheet.fill(qRgb(red, 100, 50));
        sheet.save(root.filePath(name));
    }
};

QList<Call> CallsOfAMove() {
    const Move move;
    return CallsTouching(move.root.path(), INSTALL_SKIN, move.Arguments());
}

TEST(SkinFaults, KilledAtAnyCallBothSkinsExistWhole) {
    const QList<Call> calls = CallsOfAMove();
    ASSERT_GT(calls.size(), 10);
    int in = 0;
    for (const Call& call : calls) {
        SCOPED_TRACE(call.line.toStdString());
        const Move move;
        EXPECT_EQ(RunWithFault(call, "signal=KILL", INSTALL_SKIN, move.Arguments()), -1);
        EXPECT_TRUE(move.NothingIsLost());
        in += move.Bytes("Art/new.png") == move.fresh;
        // The next attempt succeeds and clears away what was left behind.
        if (QFile::exists(move.root.filePath("new.png"))) {
            EXPECT_EQ(RunProgram(INSTALL_SKIN, move.Arguments()), 0);
            EXPECT_EQ(QDir(move.root.filePath("Art"))
                          .entryList(QDir::Files | QDir::Hidden)
                          .filter(".incoming")
                          .size(),
                      0);
        }
    }
    EXPECT_GT(in, 0);
    EXPECT_LT(in, calls.size());
}

TEST(SkinFaults, AFailedCallLosesNothing) {
    const std::pair<const char*, const char*> faults[] = {
        {"write", "ENOSPC"},  {"fsync", "EIO"}, {"rename", "EROFS"},
        {"openat", "EACCES"}, {"read", "EIO"},  {"unlink", "EROFS"},
    };
    for (const Call& call : CallsOfAMove()) {
        const auto* fault = std::find_if(std::begin(faults), std::end(faults),
                                         [&call](const auto& entry) { return call.name == entry.first; });
        if (fault == std::end(faults)) continue;
        SCOPED_TRACE(call.line.toStdString() + fault->second);
        const Move move;
        EXPECT_GE(
            RunWithFault(call, QStringLiteral("error=") + fault->second, INSTALL_SKIN, move.Arguments()), 0);
        EXPECT_TRUE(move.NothingIsLost());
        if (call.name == "write" || call.name == "fsync" || call.name == "rename") {
            EXPECT_TRUE(move.Bytes("new.png") == move.fresh && move.Bytes("Art/old.png") == move.old);
        }
    }
}

}  // namespace
