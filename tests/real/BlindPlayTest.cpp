// A whole game played by somebody who does not see it: read, pressed and typed through the accessibility bus
// alone, and compared with the rules turn by turn.

#include <gtest/gtest.h>

#include <QLocale>
#include <QRegularExpression>

#include "model/RandomSource.h"
#include "tests/real/ScreenReader.h"
#include "tests/real/SessionBus.h"
#include "tests/real/Strategy.h"
#include "tests/support/ModelScreen.h"
#include "tools/display/VirtualDisplay.h"

namespace {

constexpr unsigned kSpace = 0x20, kLeft = 0xff51, kP = 0x70;  // X's numbers of keys; left, up, right, down
constexpr int kEraser = 36;
const std::string kGame = "Tesselor";

// The cards of a game as they were read out, in the order in which the rules draw them.
class ReadCards final : public RandomSource {
public:
    void Reseed() override {}
    std::int16_t Below(std::int16_t) override {
        EXPECT_FALSE(drawn.empty());
        const std::int16_t kind = drawn.empty() ? std::int16_t(0) : drawn.front();
        if (!drawn.empty()) drawn.pop_front();
        return kind;
    }
    std::deque<std::int16_t> drawn;
};

std::string InWords(std::int16_t kind) {
    if (kind >= kEraser) return "eraser";
    return QString("shape %1, colour %2, quantity %3")
        .arg(kind / 12 + 1)
        .arg(kind % 3 + 1)
        .arg(kind / 3 % 4 + 1)
        .toStdString();
}

// The kind of the first card named in `words`.
std::int16_t KindIn(const std::string& words) {
    static const QRegularExpression card("(eraser)|shape (\\d), colour (\\d), quantity (\\d)");
    const auto match = card.match(QString::fromStdString(words));
    EXPECT_TRUE(match.hasMatch()) << words;
    if (!match.captured(1).isEmpty()) return kEraser;
    const auto digit = [&](int group) { return match.captured(group).toInt() - 1; };
    return static_cast<std::int16_t>(digit(2) * 12 + digit(4) * 3 + digit(3));
}

std::string Number(std::int32_t number) {
    return QLocale(QLocale::English).toString(number).toStdString();
}

std::string Place(int cell) {
    return "ow " + std::to_string(cell / 4 + 1) + ", column " + std::to_string(cell % 4 + 1);
}

class BlindPlay : public testing::Test {
protected:
    BlindPlay() {
        for (const char* name : {"DISPLAY", "DBUS_SESSION_BUS_ADDRESS", "XDG_RUNTIME_DIR"})
            qputenv(name, bus.Environment().value(name).toLocal8Bit());
        reader = std::make_unique<ScreenReader>();
        rules.game = &model;
        game.setProcessEnvironment(bus.Environment());
        game.setProcessChannelMode(QProcess::ForwardedChannels);
        game.start(TESSELOR_BUILD "/tesselor", {});
    }
    ~BlindPlay() override {
        game.terminate();
        if (!game.waitForFinished(5000)) game.kill(), game.waitForFinished(5000);
    }

    // The full name of what is shown and read out as `start`...; empty when nothing is.
    std::string Named(const std::string& start) {
        for (const auto& object : reader->Read(kGame))
            if (object.name.starts_with(start)) return object.name;
        return {};
    }
    bool Press(const std::string& start) { return reader->Press(kGame, Named(start)); }
    bool AwaitNamed(const std::string& start) {
        return reader->Await([&] { return !Named(start).empty(); });
    }
    bool Hears(const std::string& what) {
        for (const std::string& heard : reader->Heard())
            if (heard.find(what) != heard.npos) return true;
        return false;
    }
    bool AwaitHearing(const std::string& what) {
        return reader->Await([&] { return Hears(what); });
    }

    void StartGame() {
        reader->Forget();
        ASSERT_TRUE(Press("play"));
        ASSERT_TRUE(AwaitHearing("focus Row 4, column 1: "));
        cards.drawn = {KindIn(Named("Next card: ")), KindIn(Named("Row 4, column 1: "))};
        rules.gamesOver = 0;
        model.CardsUsed(0), model.CardSum(kCardsInGame), model.Score(0);
        model.NewGame();
    }
    // All that is read out is what the rules say.
    void CompareWithModel() {
        const std::vector<ScreenReader::Object> shown = reader->Read(kGame);
        const auto isShown = [&](const std::string& name) {
            return std::any_of(shown.begin(), shown.end(), [&](const auto& o) { return o.name == name; });
        };
        for (std::int16_t cell = 0; cell < kCells; ++cell) {
            const bool taken = model.CardAt(cell).Quantity != kNoCard;
            std::string words = taken ? InWords(model.CardAt(cell).Number) : "empty";
            if (cell == model.PosCurrentCard())
                words =
                    InWords(model.CurrentCard()) + ", active card" + (taken ? ", shaded, over " + words : "");
            EXPECT_TRUE(isShown("R" + Place(cell) + ": " + words)) << Place(cell) << ": " << words;
        }
        EXPECT_TRUE(isShown("Next card: " + InWords(model.NextCard())));
        EXPECT_TRUE(isShown("Score " + Number(model.Score())));
        const int left = model.CardSum() - model.CardsUsed();
        EXPECT_TRUE(isShown(std::to_string(left) + (left == 1 ? " card left" : " cards left"))) << left;
    }

    void MoveByKeys(int to) {
        const auto key = [&](int direction, int step) {
            const int cell = model.PosCurrentCard() + step;
            reader->Forget();
            ScreenReader::Key(kLeft + static_cast<unsigned>(direction));
            ASSERT_TRUE(AwaitHearing("focus R" + Place(cell))) << cell;
            model.PosCurrentCard(static_cast<std::int16_t>(cell));
        };
        while (model.PosCurrentCard() % 4 < to % 4) key(2, 1);
        while (model.PosCurrentCard() % 4 > to % 4) key(0, -1);
        while (model.PosCurrentCard() / 4 > to / 4) key(1, -4);
        while (model.PosCurrentCard() / 4 < to / 4) key(3, 4);
    }
    // What the rules do with the active card in `cell`, once the game has done it and dealt a card.
    void LockInModel(int cell) {
        if (!Hears("Game over")) cards.drawn.push_back(KindIn(Named("Next card: ")));
        model.PosCurrentCard(static_cast<std::int16_t>(cell));
        model.MoveCard(kKeyLock);
    }
    void AwaitTurn() {
        ASSERT_TRUE(reader->Await([&] { return Hears("focus Row 4, column 1: ") || Hears("Game over"); }));
    }
    void LockIn(int cell, bool byKeys) {
        if (byKeys) MoveByKeys(cell);
        const std::int32_t score = model.Score();
        reader->Forget();
        if (byKeys)
            ScreenReader::Key(kSpace);
        else
            ASSERT_TRUE(Press("R" + Place(cell)));
        ASSERT_NO_FATAL_FAILURE(AwaitTurn());
        LockInModel(cell);
        const bool scored = Hears("Line scored: " + Number(model.Score() - score));
        EXPECT_EQ(scored, model.Score() > score);
    }

    // The cell in which the active card completes most; any free one when `careless`; a card for an eraser.
    int Choose(bool careless) const {
        SeenBoard board;
        for (std::int16_t cell = 0; cell < kCells; ++cell)
            board[std::size_t(cell)] =
                model.CardAt(cell).Quantity == kNoCard ? -1 : model.CardAt(cell).Number;
        const bool erases = model.CurrentCard() >= kEraser;
        int best = -1, most = -1;
        for (int cell = 0; cell < kCells; ++cell) {
            const bool taken = board[std::size_t(cell)] >= 0;
            if (taken != (erases && model.CardsInMatrix() > 0)) continue;
            const int worth = erases || careless ? 0 : SharedBy(board, model.CurrentCard(), cell);
            if (worth > most) best = cell, most = worth;
        }
        return best;
    }

    void PlayGame();

    VirtualDisplay display;
    SessionBus bus{display.Environment()};
    std::unique_ptr<ScreenReader> reader;
    QProcess game;
    ModelScreen rules;
    ReadCards cards;
    clsCard model{rules, cards};
};

// To its end, with a pause in it.
void BlindPlay::PlayGame() {
    ASSERT_NO_FATAL_FAILURE(StartGame());
    for (int turn = 0; !Hears("Game over"); ++turn) {
        ASSERT_LT(turn, 400);
        ASSERT_NO_FATAL_FAILURE(LockIn(Choose(turn > 20 && model.Score() > 0), turn % 2 == 0));
        if (rules.gamesOver > 0) break;
        CompareWithModel();
        if (turn == 2) {
            ScreenReader::Key(kP);
            ASSERT_TRUE(AwaitHearing("says Paused."));
            EXPECT_EQ(Named("Row 4, column 1"), "Row 4, column 1: covered");
            reader->Forget();
            ScreenReader::Key(kP);
            ASSERT_TRUE(AwaitHearing("says The game goes on."));
            CompareWithModel();
        }
    }
}

TEST_F(BlindPlay, AWholeGameIsReadPressedAndTypedWithoutAScreen) {
    ASSERT_TRUE(AwaitNamed("play"));
    ASSERT_TRUE(Press("menu"));
    ASSERT_TRUE(AwaitNamed("junior"));
    ASSERT_TRUE(Press("sea"));
    ASSERT_TRUE(AwaitNamed("Skin sea"));
    for (const auto& object : reader->Read(kGame))
        EXPECT_EQ(object.checked, object.name == "practice" || object.name == "sea") << object.name;

    do {
        ASSERT_NO_FATAL_FAILURE(PlayGame());
    } while (model.Score() == 0);  // nobody is asked for a name then
    EXPECT_GT(rules.gamesOver, 0);
    const std::string score = "Score " + Number(model.Score());
    EXPECT_TRUE(Hears("Game over. " + score)) << score;
    ASSERT_TRUE(AwaitHearing("focus Enter Your Name"));
    ASSERT_TRUE(reader->SetText(kGame, "Enter Your Name", "Ada"));
    ASSERT_TRUE(Press("OK"));
    ASSERT_TRUE(AwaitNamed("Place 1: Ada"));
    EXPECT_FALSE(Named(score).empty());
    ASSERT_TRUE(Press("exit"));
    EXPECT_TRUE(game.waitForFinished(10000));
    EXPECT_EQ(game.exitCode(), 0);
}

TEST_F(BlindPlay, ACardLockedByTimeIsToldAfterAWarning) {
    ASSERT_TRUE(AwaitNamed("play"));
    ASSERT_TRUE(Press("menu"));
    ASSERT_TRUE(AwaitNamed("junior"));
    ASSERT_TRUE(Press("junior"));
    model.SetLevel(1);
    ASSERT_NO_FATAL_FAILURE(StartGame());
    ASSERT_NO_FATAL_FAILURE(LockIn(5, false));
    ASSERT_TRUE(AwaitHearing("A quarter of the time bar is left."));
    EXPECT_FALSE(Hears("Time is up"));
    ASSERT_TRUE(AwaitHearing("Time is up"));
    int cell = 0;
    while (cell < kCells && !Hears("locked in r" + Place(cell) + ".")) ++cell;
    ASSERT_TRUE(cell < kCells || model.CurrentCard() >= kEraser);
    // In the start cell the next card lies over it.
    const std::string locked = InWords(model.CurrentCard());
    EXPECT_TRUE(cell == kCells || reader->Await([&] { return Named("R" + Place(cell)).ends_with(locked); }));
}

}  // namespace
