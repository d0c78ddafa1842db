// What is always true between two events, read off the window and the model and put beside each other.

#include <QLocale>
#include <algorithm>

#include "model/Levels.h"
#include "screen/Look.h"
#include "screen/ScoreText.h"
#include "tests/simulation/Simulation.h"

namespace {

using Play = frmGame::Play;

std::string If(bool broken, const std::string& what) {
    return broken ? what : std::string();
}

std::string Not(const QString& shown, const QString& due) {
    return If(shown != due, shown.toStdString() + " instead of " + due.toStdString());
}

std::string OneScreen(const Simulation& w) {
    const auto& screens = w.form->fraScreen;
    const auto shown =
        std::count_if(screens.begin(), screens.end(), [](const Frame& f) { return f.Visible(); });
    if (w.form->lblNextCard.Visible() != screens[2].Visible()) return "next card";
    return If(shown != 1, std::to_string(shown) + " screens");
}

std::string InputLock(const Simulation& w) {
    return If(!w.inDemo && w.Model().RndAction() == (w.form->play == Play::On), "locked in play, or open");
}

std::string CardsOnBoard(const Simulation& w) {
    int locked = 0;
    for (std::int16_t cell = 0; cell < kCells; ++cell) locked += w.Model().CardAt(cell).Quantity != kNoCard;
    return If(locked != w.Model().CardsInMatrix(), std::to_string(locked) + " cards counted otherwise");
}

bool Occupied(const Simulation& w, std::int16_t cell) {
    return w.Model().CardAt(cell).Quantity != kNoCard;
}

Picture LockedIn(const Simulation& w, std::int16_t cell) {
    return Occupied(w, cell) ? w.Card(w.Model().CardAt(cell).Number) : Picture();
}

std::string Card(int kind) {
    if (kind > kLastOrdinaryKind) return "eraser";
    return "shape " + std::to_string(kind / 12 + 1) + ", colour " + std::to_string(kind % 3 + 1) +
           ", quantity " + std::to_string(kind / 3 % 4 + 1);
}

std::string Words(const Simulation& w, std::int16_t cell) {
    if (w.form->play == Play::Paused) return "covered";
    const std::string locked = Occupied(w, cell) ? Card(w.Model().CardAt(cell).Number) : "empty";
    if (cell != w.Model().PosCurrentCard()) return locked;
    return Card(w.Model().CurrentCard()) + ", active card" +
           (Occupied(w, cell) ? ", shaded, over " + locked : "");
}

// Covered in a pause; otherwise each cell its locked card, and the active card over that of its cell. The
// words for those who do not see it say the same.
std::string Board(const Simulation& w) {
    if (!w.PlayersGame() || w.stepLeftOver) return {};
    const bool paused = w.form->play == Play::Paused;
    for (std::int16_t cell = 0; cell < kCells; ++cell) {
        const bool active = !paused && cell == w.Model().PosCurrentCard();
        const Picture due = paused   ? w.Card(kCoverKind)
                            : active ? w.Card(w.Model().CurrentCard())
                                     : LockedIn(w, cell);
        const std::size_t drawings = !active ? 0 : Occupied(w, cell) ? 2 : 1;
        const PictureContents& shown = w.Cell(cell).Contents();
        const std::string words = "Row " + std::to_string(cell / 4 + 1) + ", column " +
                                  std::to_string(cell % 4 + 1) + ": " + Words(w, cell);
        if (shown.picture != due || shown.drawings.size() != drawings) return "not " + words;
        if (w.BoardShown() && w.Cell(cell).access.name().toStdString() != words) return "not said: " + words;
    }
    return {};
}

// What covers the board at the end stays until the next game.
std::string End(const Simulation& w) {
    const bool ended = w.before.play == Play::On && w.form->play == Play::Off && w.BoardShown() &&
                       w.random.games == w.before.games && w.dialogs.told.isEmpty() && !w.inDemo &&
                       !w.stepLeftOver;
    const auto covered = [&w](const PictureBox& box) { return box.Picture() == w.Card(kCoverKind); };
    return If(ended && !(std::ranges::all_of(w.form->picMat, covered) && covered(w.form->picPreview)),
              "shows a card");
}

std::string KeptAside(const Simulation& w) {
    const bool right = w.form->picTemp.Picture() == LockedIn(w, w.Model().PosCurrentCard());
    return If(w.PlayersGame() && !w.stepLeftOver && !right, "not what lies under the active card");
}

std::string Preview(const Simulation& w) {
    const bool next = w.BoardShown() && w.PlayersGame();
    if (w.stepLeftOver || (w.BoardShown() && !next)) return {};
    const Picture due = next ? w.Card(w.Model().NextCard()) : Picture();
    return If(w.form->picPreview.Picture() != due, next ? "not the next card" : "a card beside the screen");
}

std::string Score(const Simulation& w) {
    const bool same = w.random.games == w.before.games && w.random.games > 0;
    if (same && w.Model().Score() < w.before.score) return "has fallen";
    return Not(w.form->lblScore.Caption(), QLocale().toString(w.Model().Score()));
}

// A lock that scores nothing leaves the points of the latest one that did; a new game none.
std::string PointsOfTheLock(const Simulation& w) {
    const std::int32_t points = w.Model().SerieScore();
    const bool stays = points == 0 && w.random.turns > 0;
    return stays ? std::string() : Not(w.form->lblSerieScore.Caption(), QString::number(points));
}

std::string CardsLeft(const Simulation& w) {
    if (w.random.games == 0) return {};
    return Not(w.form->lblCardsLeft.Caption(), QString::number(w.Model().CardSum() - w.Model().CardsUsed()));
}

// No limit for the first card, on other screens, in pauses and after the end.
std::string Timers(const Simulation& w) {
    if (w.inDemo || (w.BoardShown() && w.form->play == Play::On && !w.PlayersGame())) return {};
    const bool due = w.BoardShown() && w.form->play == Play::On && w.random.turns > 0;
    if (w.form->Timer1.Enabled() != due || w.form->Timer2.Enabled() != due) return due ? "stand" : "run";
    const int limit = LockTime(w.Model().SetLevel(), w.Model().CardsInMatrix());
    if (due && w.form->Timer1.Interval() != limit) return "have the limit of another board";
    const bool still = !due && w.PlayersGame() && w.BoardShown();  // help and a failed "play" leave the bar
    return If(still && w.form->prbTime.Value() != 0, "stand with time on the bar");
}

// Time alone locks where there is a limit, and at the latest when it has passed.
std::string LockByTime(const Simulation& w) {
    if (!w.passing || w.inDemo) return {};
    const bool limited = w.before.timeCounts && w.before.interval > 0;
    const bool over = w.time.Now() - w.before.now >= std::chrono::milliseconds(w.before.interval);
    const bool locked = w.random.turns != w.before.turns || w.form->play != w.before.play;
    return If(locked ? !limited : limited && over, locked ? "without a limit" : "none when time was up");
}

// The high scores put the light out; it comes back with another button.
std::string LitCaption(const Simulation& w) {
    std::vector<int> lit;
    for (int i = 0; i < 5; ++i)
        if (w.form->lblCaption[std::size_t(i)].ForeColor() == Look::kLitCaption) lit.push_back(i);
    const int menu = w.form->CurrentMenu;
    if (lit.empty()) return If(!w.form->fraScreen[3].Visible() && menu != w.before.unlitMenu, "none");
    if (lit != std::vector{menu} || w.form->fraScreen[3].Visible()) return "not the button pressed last";
    const bool right = w.BoardShown() ? menu == 0 || w.form->play == Play::Off
                                      : (menu == 4 ? 2 : menu) == (w.form->fraScreen[1].Visible() ? 1 : 2);
    return If(!right, "of another screen");
}

std::string NameEntry(const Simulation& w) {
    const bool asks = w.form->picEnterName.Visible();
    for (const Image& button : w.form->imgButton)
        if (button.Enabled() == asks) return asks ? "with an open menu" : "gone, and the menu closed";
    return If(asks && (w.form->play != Play::Off || !w.BoardShown()), "in a game");
}

std::string Level(const Simulation& w) {
    const int level = w.form->CurrentLevel;
    for (int i = 0; i < kLevels; ++i)
        if ((w.form->lblClass[std::size_t(i)].ForeColor() == kRed) != (i == level)) return "red at another";
    const Label& label = w.form->lblClass[std::size_t(level)];
    if (!w.form->shpLevel.geometry().contains(label.geometry().center())) return "marked at another";
    const QString name = label.Caption();
    if (w.form->prbTime.Visible() != (level > 0)) return "and its bar differ";
    return If(w.Model().SetLevel() != level || w.form->lblLevelName.Caption() != name, "told differently");
}

std::string Skins(const Simulation& w) {
    const auto current = std::size_t(w.form->CurrentSkin);
    if (w.form->CurrentSkin > std::max<int>(0, w.form->SkinCount - 1)) return "an empty slot is chosen";
    return Not(QString::fromStdString(w.Model().SetSkinPicture()), w.form->skinFile[current]);
}

std::string Focus(const Simulation& w) {
    const QWidget* focus = w.form->focusWidget();
    const bool right = !focus || w.form->isMinimized() || (focus->isVisible() && focus->isEnabled());
    return If(!right, focus ? focus->objectName().toStdString() : "");
}

// No entry gets lost but the last, and that to a better one.
std::string HighScores(const Simulation& w) {
    if (w.Bytes() == w.before.store) return {};
    std::vector<HighScore> table = StoredTable(w), old = w.before.table;
    const auto points = [](const HighScore& entry) { return ScoreFromText(entry.score); };
    const auto same = [](const HighScore& a, const HighScore& b) {
        return a.name == b.name && a.date == b.date && a.score == b.score;
    };
    if (!std::is_sorted(table.begin(), table.end(),
                        [&](const HighScore& a, const HighScore& b) { return points(a) > points(b); }))
        return "out of order";
    const auto entered = std::mismatch(table.begin(), table.end(), old.begin(), same).first;
    if (entered == table.end()) return {};
    if (points(*entered) <= points(old.back())) return "a better one lost";
    table.erase(entered);
    old.pop_back();
    return If(!std::equal(table.begin(), table.end(), old.begin(), same), "an entry lost");
}

std::string SkinFiles(const Simulation& w) {
    int lost = 0;
    for (const QString& file : w.before.files) lost += QFile::exists(w.Art(file)) ? 0 : 1;
    return If(lost > w.confirmed, "lost without a yes");
}

// A thumbnail, a card's shade and its frame, or a frame in either colour.
std::string Drawings(const Simulation& w) {
    const auto many = [](const PictureBox& box) { return box.Contents().drawings.size() > 2; };
    const auto anyOf = [many](const auto& boxes) { return std::any_of(boxes.begin(), boxes.end(), many); };
    return If(anyOf(w.form->picMat) || anyOf(w.form->picSkin) || many(w.form->picCurrSkin), "pile up");
}

}  // namespace

std::string Broken(const Simulation& world) {
    constexpr std::pair<const char*, std::string (*)(const Simulation&)> invariants[] = {
        {"screens", OneScreen},
        {"input lock", InputLock},
        {"cards", CardsOnBoard},
        {"board", Board},
        {"end", End},
        {"kept aside", KeptAside},
        {"preview", Preview},
        {"score", Score},
        {"points of the lock", PointsOfTheLock},
        {"cards left", CardsLeft},
        {"timers", Timers},
        {"lock by time", LockByTime},
        {"lit caption", LitCaption},
        {"name entry", NameEntry},
        {"level", Level},
        {"skins", Skins},
        {"keyboard", Focus},
        {"high scores", HighScores},
        {"skin files", SkinFiles},
        {"drawings", Drawings},
    };
    for (const auto& [name, broken] : invariants)
        if (const std::string what = broken(world); !what.empty()) return name + (": " + what);
    return {};
}
