#include "screen/Narrator.h"

#include <QAbstractEventDispatcher>
#include <QLocale>

#include "screen/ScoreText.h"
#include "screen/Spoken.h"

namespace {

constexpr int kRunningOut = 75;  // percent of the time bar

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

Narrator::Narrator(frmGame& form)
    : form_(form), news_(&form, {QStringLiteral("news"), {0, 0, kTwipsPerPixel, kTwipsPerPixel}, {}}) {
    news_.setAttribute(Qt::WA_TransparentForMouseEvents);
    news_.access = {QAccessible::Notification, [this] { return said_; }};
    for (QWidget* control : form.findChildren<QWidget*>())
        if (const Access* access = AccessOf(control); access && access->name && control != &news_)
            told_.push_back({control, *access, {}});
    QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, &news_,
                     [this] { Look(); });
}

void Narrator::Look() {
    if (!QAccessible::isActive()) return;
    for (Told& told : told_)
        if (told.control->isVisible()) TellChanges(told);
    const Standing now = Stands();
    const QStringList news = News(now);
    standing_ = now;
    timeIsUp_ = false;
    if (!news.isEmpty()) Say(news.join(u' '));
    TellActiveCard();
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
    if (told.access.percent && told.access.percent() != told.percent) {
        told.percent = told.access.percent();
        QAccessibleValueChangeEvent change(told.control, told.percent);
        QAccessible::updateAccessibility(&change);
    }
}

// While the board has the keyboard, its active card is where the player is.
void Narrator::TellActiveCard() {
    if (standing_.active < 0 || !form_.hasFocus()) return turn_.clear();
    PictureBox& cell = form_.picMat[static_cast<std::size_t>(standing_.active)];
    // The next card may be just like the one before, in the same place.
    const QString turn = cell.access.name() + form_.picPreview.access.name() + form_.lblCardsLeft.Caption() +
                         '/' + form_.lblScore.Caption();
    if (turn != turn_) {
        turn_ = turn;
        Tell(&cell, QAccessible::Focus);
    }
}

Narrator::Standing Narrator::Stands() const {
    Standing now;
    if (!form_.fraScreen[0].Visible()) return now;
    now.play = form_.play;
    now.score = ScoreFromText(form_.lblScore.Caption());
    now.percent = form_.prbTime.Visible() ? form_.prbTime.Value() : 0;
    for (int cell = 0; cell < kCells; ++cell) {
        if (IsActive(form_, cell)) now.active = cell;
        now.locked[static_cast<std::size_t>(cell)] =
            IsLocked(form_, cell) || (IsActive(form_, cell) && !form_.picTemp.Picture().IsEmpty());
    }
    return now;
}

QString Narrator::TimedLock(const Standing& now) const {
    for (int cell = 0; cell < kCells; ++cell)
        if (now.locked[std::size_t(cell)] && !standing_.locked[std::size_t(cell)])
            return QStringLiteral("Time is up: locked in %1.").arg(PlaceInWords(cell));
    return QStringLiteral("Time is up.");  // the card has completed a line, or was an eraser
}

QStringList Narrator::News(const Standing& now) const {
    QStringList news;
    const Standing& before = standing_;
    const bool wasOn = before.play == frmGame::Play::On, isOn = now.play == frmGame::Play::On;
    if (timeIsUp_) news += TimedLock(now);
    if (wasOn && isOn && before.percent < kRunningOut && now.percent >= kRunningOut)
        news += QStringLiteral("A quarter of the time bar is left.");
    if (now.score > before.score)
        news += QStringLiteral("Line scored: %1 points.").arg(QLocale().toString(now.score - before.score));
    if (wasOn && now.play == frmGame::Play::Paused) news += QStringLiteral("Paused.");
    if (before.play == frmGame::Play::Paused && isOn) news += QStringLiteral("The game goes on.");
    if (wasOn && now.play == frmGame::Play::Off && form_.fraScreen[0].Visible())
        news += QStringLiteral("Game over. %1.").arg(form_.lblScore.access.name());
    return news;
}

void Narrator::Say(const QString& sentence) {
    said_ = sentence;
    Tell(&news_, QAccessible::NameChanged);
    Tell(&news_, QAccessible::ObjectShow);
}
