// What holds between two events, read off the window and the model and put beside each other.

#include <QApplication>
#include <QLocale>
#include <algorithm>
#include <numeric>

#include "model/Levels.h"
#include "screen/Look.h"
#include "screen/ScoreText.h"
#include "tests/simulation/Simulation.h"

namespace {

using Play = frmGame::Play;

bool Occupied(const Simulation& w, std::int16_t cell) {
    return w.Model().CardAt(cell).Quantity != kNoCard;
}

Picture LockedIn(const Simulation& w, std::int16_t cell) {
    return Occupied(w, cell) ? w.Card(w.Model().CardAt(cell).Number) : Picture();
}

QString Words(int kind) {
    if (kind > kLastOrdinaryKind) return "eraser";
    const QString text = "shape %1, colour %2, quantity %3";
    return text.arg(kind / 12 + 1).arg(kind % 3 + 1).arg(kind / 3 % 4 + 1);
}

// Covered in a pause; otherwise its locked card, and the active card over that of its cell. The words for
// those who do not see it say the same.
bool CellIsRight(const Simulation& w, std::int16_t cell) {
    const bool paused = w.form->play == Play::Paused, occupied = Occupied(w, cell);
    const bool active = !paused && cell == w.Model().PosCurrentCard();
    const QString locked = occupied ? Words(w.Model().CardAt(cell).Number) : "empty";
    const QString words = paused   ? "covered"
                          : active ? Words(w.Model().CurrentCard()) + ", active card" +
                                         (occupied ? ", shaded, over " + locked : "")
                                   : locked;
    const Picture due = paused   ? w.Card(kCoverKind)
                        : active ? w.Card(w.Model().CurrentCard())
                                 : LockedIn(w, cell);
    const PictureContents& shown = w.Cell(cell).Contents();
    return shown.picture == due &&
           shown.drawings.size() == (!active    ? 0u
                                     : occupied ? 2u
                                                : 1u) &&
           w.Cell(cell).access.name() ==
               QString("Row %1, column %2: ").arg(cell / 4 + 1).arg(cell % 4 + 1) + words;
}

// Time alone locks where there is a limit, and at the latest when it has passed.
bool TimeLocksInTime(const Simulation& w) {
    const bool limited = w.before.timeCounts && w.before.interval > 0;
    const bool over = w.time.Now() - w.before.now >= std::chrono::milliseconds(w.before.interval);
    const bool locked = w.random.turns != w.before.turns || w.form->play != w.before.play;
    return locked ? limited : !limited || !over;
}

// The high scores put the light out; it comes back with another button.
bool CaptionIsLit(const Simulation& w) {
    std::vector<int> lit;
    for (int i = 0; i < 5; ++i)
        if (w.form->lblCaption[std::size_t(i)].ForeColor() == Look::kLitCaption) lit.push_back(i);
    const int menu = w.form->CurrentMenu;
    const bool scores = w.form->fraScreen[3].Visible();
    if (lit.empty()) return scores || menu == w.before.unlitMenu;
    if (lit != std::vector{menu} || scores) return false;
    return w.BoardShown() ? menu == 0 || w.form->play == Play::Off
                          : (menu == 4 ? 2 : menu) == (w.form->fraScreen[1].Visible() ? 1 : 2);
}

// In order, and no entry gets lost but the last, and that to a better one.
bool HighScoresAreKept(const Simulation& w) {
    if (w.Bytes() == w.before.store) return true;
    std::vector<HighScore> table = StoredTable(w), old = w.before.table;
    const auto points = [](const HighScore& entry) { return ScoreFromText(entry.score); };
    const auto same = [](const HighScore& a, const HighScore& b) {
        return a.name == b.name && a.date == b.date && a.score == b.score;
    };
    const auto entered = std::ranges::mismatch(table, old, same).in1;
    if (!std::ranges::is_sorted(table, std::ranges::greater(), points)) return false;
    if (entered == table.end()) return true;
    const bool better = points(*entered) > points(old.back());
    table.erase(entered);
    old.pop_back();
    return better && std::ranges::equal(table, old, same);
}

}  // namespace

std::string Broken(const Simulation& w) {
    const frmGame& form = *w.form;
    const clsCard& game = w.Model();
    const bool on = form.play == Play::On, shown = w.BoardShown(), own = w.PlayersGame();
    const bool whole = own && !w.stepLeftOver, sameGame = w.random.games == w.before.games;
    const bool ended = w.before.play == Play::On && form.play == Play::Off && shown && sameGame &&
                       w.dialogs.told.isEmpty() && !w.inDemo && !w.stepLeftOver;
    const bool timersKnown = !w.inDemo && !(shown && on && !own), due = shown && on && w.random.turns > 0;
    const auto level = std::size_t(form.CurrentLevel);
    const bool asks = form.picEnterName.Visible();
    const QWidget* focus = form.focusWidget();
    std::array<std::int16_t, kCells> cells{};
    std::iota(cells.begin(), cells.end(), std::int16_t{0});
    const auto visible = [](const Frame& screen) { return screen.Visible(); };
    const auto covered = [&w](const PictureBox& box) { return box.Picture() == w.Card(kCoverKind); };
    const auto piled = [](const PictureBox& box) { return box.Contents().drawings.size() > 2; };
    const auto lost = [&w](const QString& file) { return !QFile::exists(w.Art(file)); };
    const std::pair<const char*, bool> facts[] = {
        {"one screen is shown", std::ranges::count_if(form.fraScreen, visible) == 1},
        {"\"next card\" is on the help screen", form.lblNextCard.Visible() == form.fraScreen[2].Visible()},
        {"only a game takes input", w.inDemo || game.RndAction() != on},
        {"all cards are counted",
         std::ranges::count_if(cells, [&](auto cell) { return Occupied(w, cell); }) == game.CardsInMatrix()},
        {"the board is shown",
         !whole || std::ranges::all_of(cells, [&](auto c) { return CellIsRight(w, c); })},
        {"the end covers it",
         !ended || (std::ranges::all_of(form.picMat, covered) && covered(form.picPreview))},
        {"what lies under the card is kept",
         !whole || form.picTemp.Picture() == LockedIn(w, game.PosCurrentCard())},
        {"the next card is shown in a game",
         w.stepLeftOver || (shown && !own) ||
             form.picPreview.Picture() == (shown ? w.Card(game.NextCard()) : Picture())},
        {"the score is shown", form.lblScore.Caption() == QLocale().toString(game.Score())},
        {"the score never falls", !sameGame || w.random.games == 0 || game.Score() >= w.before.score},
        {"the points of the latest lock that scored are shown",
         (game.SerieScore() == 0 && w.random.turns > 0) ||
             form.lblSerieScore.Caption() == QString::number(game.SerieScore())},
        {"the cards left are shown",
         w.random.games == 0 ||
             form.lblCardsLeft.Caption() == QString::number(game.CardSum() - game.CardsUsed())},
        {"the timers run after the first card of a game that goes on",
         !timersKnown || (form.Timer1.Enabled() == due && form.Timer2.Enabled() == due)},
        {"the limit is that of the board",
         !timersKnown || !due || form.Timer1.Interval() == LockTime(game.SetLevel(), game.CardsInMatrix())},
        {"the bar is empty while they stand",
         !timersKnown || due || !own || !shown || form.prbTime.Value() == 0},
        {"time locks in time", !w.passing || w.inDemo || TimeLocksInTime(w)},
        {"the caption of the screen is lit", CaptionIsLit(w)},
        {"the menu is closed while a name is asked for",
         std::ranges::all_of(form.imgButton, [&](const Image& button) { return button.Enabled() != asks; })},
        {"a name is asked for after a game", !asks || (form.play == Play::Off && shown)},
        {"the level chosen is red", std::ranges::all_of(form.lblClass,
                                                        [&](const Label& label) {
                                                            return (label.ForeColor() == kRed) ==
                                                                   (&label == &form.lblClass[level]);
                                                        })},
        {"the level chosen is marked",
         form.shpLevel.geometry().contains(form.lblClass[level].geometry().center())},
        {"the level has its name", form.lblLevelName.Caption() == form.lblClass[level].Caption()},
        {"the model has the level", game.SetLevel() == form.CurrentLevel},
        {"a limit has a bar", form.prbTime.Visible() == (level > 0) && form.shpTime.Visible() == (level > 0)},
        {"a full slot is chosen", form.CurrentSkin <= std::max<int>(0, form.SkinCount - 1)},
        {"the model has the skin",
         QString::fromStdString(game.SetSkinPicture()) == form.skinFile[std::size_t(form.CurrentSkin)]},
        {"what has the keyboard can take it",
         !focus || form.isMinimized() || (focus->isVisible() && focus->isEnabled())},
        {"high scores are kept", HighScoresAreKept(w)},
        {"no skin is lost without a yes", std::ranges::count_if(w.before.files, lost) <= w.confirmed},
        {"drawings do not pile up", std::ranges::none_of(form.picMat, piled) &&
                                        std::ranges::none_of(form.picSkin, piled) &&
                                        !piled(form.picCurrSkin)},
    };
    for (const auto& [fact, holds] : facts)
        if (!holds) return fact;
    return {};
}
