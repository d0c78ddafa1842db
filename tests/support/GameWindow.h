#pragma once

#include <QDropEvent>
#include <QMimeData>
#include <QTemporaryDir>
#include <QTest>
#include <deque>
#include <random>

#include "platform/sound/SoundOutput.h"
#include "screen/frmGame.h"
#include "tests/support/Files.h"
#include "tests/support/VirtualTime.h"

// Random numbers as a test wants them: those it names first, then a fixed sequence. Knows the beginning of a
// game by its first card, the only kind drawn without re-seeding, and counts the turns by the cards after it.
class ScriptedRandom final : public RandomSource {
public:
    void Reseed() override { reseeded_ = true; }
    std::int16_t Below(std::int16_t count) override {
        if (count == kCardKinds) {
            const bool begins = !std::exchange(reseeded_, false);
            turns = begins ? 0 : turns + 1;
            games += begins;
        }
        if (script.empty()) return static_cast<std::int16_t>(rest() % static_cast<unsigned>(count));
        const std::int16_t value = script.front();
        script.pop_front();
        return value;
    }

    std::deque<std::int16_t> script;
    std::mt19937 rest{20261124};
    int games = 0, turns = 0;

private:
    bool reseeded_ = false;
};

// Message boxes that answer at once and remember what they said.
class AnsweredDialogs final : public Dialogs {
public:
    void Tell(QWidget*, const QString& sentence) override { told.append(sentence), meanwhile(); }
    bool Ask(QWidget* owner, const QString& question) override { return Tell(owner, question), answer; }

    QStringList told;
    bool answer = false;
    std::function<void()> meanwhile = [] {};  // happens while a box is open
};

// Remembers the sounds that would be heard, as the bytes of their files.
class RecordedSounds final : public SoundOutput {
public:
    bool Play(const QByteArray& wave) override { return heard.append(wave), true; }

    QList<QByteArray> heard;
};

// A skin whose cells are all of different colours, as a PNG file.
inline void WriteSkin(const QString& path, QSize cell = {20, 20}) {
    QImage sheet(kSheetColumns, kSheetRows, QImage::Format_RGB32);
    for (int k = 0; k < kSheetCells; ++k) sheet.setPixel(k % 3, k / 3, qRgb(255 - k, 200 + k, 240 - 2 * k));
    sheet.scaled(cell.width() * kSheetColumns, cell.height() * kSheetRows).save(path, "PNG");
}

// The whole game window on virtual time, with a program folder of its own that holds the skin "test.png".
class GameWindow {
public:
    GameWindow() {
        QDir(folder.path()).mkdir("Art");
        WriteSkin(Art("test.png"));
        Open();
    }

    void Open() {
        form.reset();
        ended = false;
        form =
            std::make_unique<frmGame>(World{time, random, dialogs, soundFiles, ProgramFolder(folder.path()),
                                            [this] { ended = form->StopDemo = true; },
                                            [this](const QString& address) { opened.append(address); }});
    }
    void Play(int level = 0) {
        form->lblClass_Click(static_cast<std::int16_t>(level));
        form->imgButton_Click(0);
    }
    // Plays with a first, a second and further kinds given; what is drawn after them is arbitrary.
    void PlayKinds(const std::deque<std::int16_t>& kinds, int level = 0) {
        random.script = kinds;
        std::swap(random.script[0], random.script[1]);  // the next card is drawn first
        Play(level);
    }
    void Key(int code) { form->Form_KeyDown(static_cast<std::int16_t>(code), 0); }
    void Lock() { Key(kKeyLock); }
    void MoveTo(int cell) {
        form->HoverCell = -1;
        form->picMat_MouseMove(static_cast<std::int16_t>(cell), 0, 0, 0, 0);
    }
    void LockAt(int cell) { form->LockInCell(static_cast<std::int16_t>(cell)); }
    // Drags files onto a control; whether it took them.
    bool Drop(QWidget& target, const QList<QUrl>& urls) {
        dialogs.told.clear();
        QMimeData data;
        data.setUrls(urls);
        QDragEnterEvent enter({5, 5}, Qt::MoveAction | Qt::CopyAction, &data, Qt::LeftButton, {});
        QDropEvent drop({5, 5}, Qt::MoveAction | Qt::CopyAction, &data, Qt::LeftButton, {});
        enter.ignore();
        QCoreApplication::sendEvent(&target, &enter);
        if (enter.isAccepted()) QCoreApplication::sendEvent(&target, &drop);
        // The drop ends before the skin is read, so the drag source need not wait.
        EXPECT_EQ(drop.isAccepted() && drop.dropAction() == Qt::CopyAction && dialogs.told.isEmpty(),
                  enter.isAccepted());
        return QCoreApplication::processEvents(), enter.isAccepted();
    }
    void RightClick() { form->picMat_MouseDown(0, 2, 0, 0, 0); }
    [[nodiscard]] clsCard& Model() const { return form->Game(); }
    [[nodiscard]] Picture Card(int kind) const { return form->PicClip1.Cell(kind); }
    [[nodiscard]] const PictureBox& Cell(int cell) const { return form->picMat[std::size_t(cell)]; }
    [[nodiscard]] QString Art(const QString& file = {}) const { return folder.filePath("Art/" + file); }

    QTemporaryDir folder;
    VirtualTime time;
    ScriptedRandom random;
    AnsweredDialogs dialogs;
    RecordedSounds sounds;
    SoundFiles soundFiles{sounds};
    bool ended = false;
    QStringList opened;  // web addresses
    std::unique_ptr<frmGame> form;
};
