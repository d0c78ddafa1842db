// What holds between two events, read off the window and the model and put beside each other.

#include <algorithm>
#include <numeric>

#include "model/Levels.h"
#include "screen/storage/ScoreText.h"
#include "tests/simulation/Simulation.h"

namespace {

using Play = frmGame::Play;
namespace ranges = std::ranges;

bool Occupied(const Simulation& w, std::int16_t cell) {
    return w.Model().CardAt(cell).Quantity != kNoCard;
}

// Covered in a pause; otherwise its locked card, and the active card over that of its cell, which is kept
// aside.
bool CellIsRight(const Simulation& w, std::int16_t cell) {
    const bool paused = w.form->play == Play::Paused, occupied = Occupied(w, cell);
    const bool active = !paused && cell == w.Model().PosCurrentCard(), over = active && occupied;
    const int locked = occupied ? w.Model().CardAt(cell).Number : -1;
    const int due = paused ? kCoverKind : active ? w.Model().CurrentCard() : locked;
    const auto picture = [&w](int kind) { return kind < 0 ? Picture() : w.Card(kind); };
    const PictureContents& shown = w.Cell(cell).Contents();
    return shown.picture == picture(due) && int(shown.drawings.size()) == active + over &&
           (cell != w.Model().PosCurrentCard() || w.form->picTemp.Picture() == picture(locked));
}

// In order, and no entry gets lost but the last, and that to a better one.
bool HighScoresAreKept(const Simulation& w) {
    if (w.Bytes() == w.before.store) return true;
    const QList<QStringList> table = StoredTable();
    QList<QStringList> due = w.before.table;
    const auto points = [](const QStringList& entry) { return ScoreFromText(entry[0]); };
    const auto entered = ranges::mismatch(table, due).in1;
    if (entered != table.end()) {
        if (points(*entered) <= points(due.back())) return false;
        due.insert(entered - table.begin(), *entered);
        due.removeLast();
    }
    return table == due && ranges::is_sorted(table, ranges::greater(), points);
}

}  // namespace

std::string Broken(const Simulation& w) {
    const frmGame& form = *w.form;
    const clsCard& game = w.Model();
    const bool on = form.play == Play::On, shown = form.fraScreen[0].Visible();
    // The player's own game is on the board, nothing that a demonstration has dealt.
    const bool own = form.play != Play::Off && form.picMat[0].Enabled() && !w.inDemo;
    const bool whole = own && !w.stepLeftOver, sameGame = w.random.games == w.before.games;
    const bool ended = w.before.play == Play::On && form.play == Play::Off && shown && sameGame &&
                       w.dialogs.told.isEmpty() && !w.inDemo && !w.stepLeftOver;
    // The timers run after the first card of a game that goes on.
    const bool timersKnown = !w.inDemo && !(shown && on && !own), due = shown && on && w.random.turns > 0;
    const bool locked = w.random.turns != w.before.turns || form.play != w.before.play;
    const bool limited = w.before.limit != std::chrono::milliseconds::max();
    const Label& level = form.lblClass[form.CurrentLevel];
    const bool hasLimit = form.CurrentLevel > 0, asks = form.picEnterName.Visible();
    const QWidget* focus = form.focusWidget();
    std::array<std::int16_t, kCells> cells{};
    std::iota(cells.begin(), cells.end(), std::int16_t{0});
    const auto visible = [](const Frame& screen) { return screen.Visible(); };
    const auto right = [&w](std::int16_t cell) { return CellIsRight(w, cell); };
    const auto occupied = [&w](std::int16_t cell) { return Occupied(w, cell); };
    const auto covered = [&w](const PictureBox& box) { return box.Picture() == w.Card(kCoverKind); };
    const auto piled = [](const PictureBox& box) { return box.Contents().drawings.size() > 2; };
    const auto closed = [](const Image& button) { return !button.Enabled(); };
    const auto red = [](const Label& label) { return label.ForeColor() == kRed; };
    const auto lost = [&w](const QString& file) { return !QFile::exists(w.Art(file)); };
    const std::pair<const char*, bool> facts[] = {
        {"one screen is shown", ranges::count_if(form.fraScreen, visible) == 1},
        {"\"next card\" is on the help screen", form.lblNextCard.Visible() == form.fraScreen[2].Visible()},
        {"only a game takes input", w.inDemo || game.RndAction() != on},
        {"all cards are counted", ranges::count_if(cells, occupied) == game.CardsInMatrix()},
        {"the board is shown", !whole || ranges::all_of(cells, right)},
        {"the end covers it", !ended || (ranges::all_of(form.picMat, covered) && covered(form.picPreview))},
        {"the next card is shown in a game",
         w.stepLeftOver || (shown && !own) ||
             form.picPreview.Picture() == (shown ? w.Card(game.NextCard()) : Picture())},
        {"the score is shown", form.lblScore.Caption() == QLocale().toString(game.Score())},
        {"the score never falls", !sameGame || game.Score() >= w.before.score},
        {"the points of the latest lock that scored are shown",
         (game.SerieScore() == 0 && w.random.turns > 0) ||
             form.lblSerieScore.Caption() == QString::number(game.SerieScore())},
        {"the cards left are shown",
         w.random.games == w.gamesBefore ||
             form.lblCardsLeft.Caption() == QString::number(game.CardSum() - game.CardsUsed())},
        {"the timers run", !timersKnown || (form.Timer1.Enabled() == due && form.Timer2.Enabled() == due)},
        {"the limit is that of the board",
         !timersKnown || !due || form.Timer1.Interval() == LockTime(game.SetLevel(), game.CardsInMatrix())},
        {"a standing bar is empty",
         !timersKnown || due || !(own || ended) || !shown || form.prbTime.Value() == 0},
        {"time alone locks where there is a limit, and at the latest when it has passed",
         !w.onlyTime || w.inDemo || (locked ? limited : w.time.Now() < w.before.limit)},
        {"the menu is closed for a name", ranges::count_if(form.imgButton, closed) == (asks ? 5 : 0)},
        {"a name is asked for after a game", !asks || (form.play == Play::Off && shown)},
        {"the level chosen is red", red(level) && ranges::count_if(form.lblClass, red) == 1},
        {"the level chosen is marked", form.shpLevel.geometry().contains(level.geometry().center())},
        {"the level", form.lblLevelName.Caption() == level.Caption() && game.SetLevel() == form.CurrentLevel},
        {"a limit has a bar", form.prbTime.Visible() == hasLimit && form.shpTime.Visible() == hasLimit},
        {"a full slot is chosen", form.CurrentSkin <= std::max<int>(0, form.SkinCount - 1)},
        {"the model has the skin",
         QString::fromStdString(game.SetSkinPicture()) == form.skinFile[form.CurrentSkin]},
        {"the focus takes keys", !focus || form.isMinimized() || (focus->isVisible() && focus->isEnabled())},
        {"high scores are kept", HighScoresAreKept(w)},
        {"no skin is lost without a yes", ranges::count_if(w.before.files, lost) <= w.mayGo},
        {"drawings do not pile up", ranges::none_of(form.picMat, piled) &&
                                        ranges::none_of(form.picSkin, piled) && !piled(form.picCurrSkin)},
    };
    for (const auto& [fact, holds] : facts)
        if (!holds) return fact;
    return {};
}
