#include "screen/Narrator.h"

#include <QAbstractEventDispatcher>

#include "platform/controls/Announce.h"
#include "platform/language/Tesselor.h"
#include "screen/Words.h"
#include "screen/frmGame.h"

namespace {

void Tell(QWidget* control, QAccessible::Event event) {
    QAccessibleEvent change(control, event);
    QAccessible::updateAccessibility(&change);
}

void TellChoice(QWidget* control, QAccessible::Role role) {
    QAccessible::State changed;
    changed.checked = role == QAccessible::RadioButton;
    changed.selected = role != QAccessible::RadioButton;
    QAccessibleStateChangeEvent change(control, changed);
    QAccessible::updateAccessibility(&change);
}

}  // namespace

Narrator::Narrator(frmGame& form) : form_(form) {
    for (QWidget* control : form.findChildren<QWidget*>())
        if (const Access* access = AccessOf(control); access && access->name)
            told_.push_back({control, *access, {}});
    QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, &form_,
                     [this] { Look(); });
}

void Narrator::Add(const QString& news) {
    if (QAccessible::isActive()) news_ += news;
}

void Narrator::AddTimedLock() {
    if (!std::exchange(timedLock_, false)) return;
    const std::int16_t cell = form_.Game().PosCurrentCard();
    Add(form_.IsOccupied(cell)
            ? Tesselor::tr("Time is up: locked in row %1, column %2.").arg(RowOf(cell)).arg(ColumnOf(cell))
            : Tesselor::tr("Time is up."));
}

void Narrator::AddTimedEraser() {
    if (std::exchange(timedLock_, false)) Add(Tesselor::tr("Time is up."));
}

void Narrator::AddLock() {
    AddTimedLock();
    if (const std::int32_t points = form_.Game().SerieScore())
        Add(Tesselor::tr("Line scored: %Ln point(s).", nullptr, points));
}

void Narrator::AddEnd() {
    AddTimedLock();
    Add(Tesselor::tr("Game over. %1.").arg(form_.lblScore.access.name()));
}

void Narrator::AddScreen(const Frame& screen) {
    Add(screen.access.name() + '.');
    for (const QWidget* control : screen.findChildren<QWidget*>())
        if (const Access* access = AccessOf(control); access && access->role == QAccessible::StaticText)
            Add(access->name() + '.');
}

void Narrator::Look() {
    if (!QAccessible::isActive()) return;
    for (Told& told : told_)
        if (told.control->isVisible()) TellChanges(told);
    QWidget* active = NewActiveCell();
    if (!news_.isEmpty()) Announce(form_, std::exchange(news_, {}).join(u' '));
    if (active) Tell(active, QAccessible::Focus);
}

void Narrator::TellChanges(Told& told) {
    if (const QString name = told.access.name(); name != told.name) {
        told.name = name;
        Tell(told.control, QAccessible::NameChanged);
    }
    if (told.access.chosen && told.access.chosen() != told.chosen) {
        told.chosen = !told.chosen;
        TellChoice(told.control, told.access.role);
    }
}

QWidget* Narrator::NewActiveCell() {
    if (!form_.hasFocus()) focused_ = nullptr;
    const std::int16_t active = form_.ActiveCell();
    if (active < 0 || !form_.fraScreen[0].Visible() || !form_.hasFocus()) {
        turn_.clear();
        return nullptr;
    }
    PictureBox& cell = form_.picMat[active];
    // Include the counters: the next card may equal the one before, in the same place.
    const QString turn = cell.access.name() + form_.picPreview.access.name() + form_.lblCardsLeft.Caption() +
                         '/' + form_.lblScore.Caption();
    if (std::exchange(turn_, turn) == turn) return nullptr;
    // Other screen readers do not read what has the focus already.
    if (std::exchange(focused_, &cell) == &cell && !kReadersFollowNames) news_ += cell.access.name();
    return &cell;
}
