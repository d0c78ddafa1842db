#include "screen/Words.h"

#include "screen/frmGame.h"

namespace {

QString ContentsInWords(const frmGame& form, std::int16_t cell) {
    if (form.boardCovered) return QStringLiteral("covered");
    QString locked =
        form.IsOccupied(cell) ? CardInWords(form.Game().CardAt(cell).Number) : QStringLiteral("empty");
    if (!form.IsActive(cell)) return locked;
    const QString active = CardInWords(form.Game().CurrentCard());
    if (!form.IsOccupied(cell)) return active + QStringLiteral(", active card");
    // The next key silences the rest, so what the player does not know yet comes first: a new card, or what a
    // moved one lies on.
    return (cell == kStartCell ? QStringLiteral("%1, active card, over %2")
                               : QStringLiteral("over %2, active card %1"))
        .arg(active, locked);
}

}  // namespace

QString CardInWords(int kind) {
    if (kind > kLastOrdinaryKind || kind < 0) return QStringLiteral("eraser");
    static const CardKinds kinds = MakeCardKinds();
    const CardInfo& card = kinds[static_cast<std::size_t>(kind / 3)][static_cast<std::size_t>(kind % 3)];
    return QStringLiteral("shape %1, colour %2, quantity %3")
        .arg(card.AttrA)
        .arg(card.AttrB)
        .arg(card.Quantity);
}

QString PlaceInWords(int cell) {
    return QStringLiteral("row %1, column %2").arg(cell / kSide + 1).arg(cell % kSide + 1);
}

QString CellInWords(const frmGame& form, std::int16_t cell) {
    QString place = PlaceInWords(cell);
    place[0] = place[0].toUpper();
    return QStringLiteral("%1: %2").arg(place, ContentsInWords(form, cell));
}

QString NextCardInWords(const frmGame& form) {
    const bool dealt = form.play != frmGame::Play::Off;
    return QStringLiteral("Next card: ") + (dealt ? CardInWords(form.nextCardShown) : QStringLiteral("none"));
}

QString BoardInWords(const frmGame& form) {
    const QString board = QStringLiteral("Board, level ") + form.lblLevelName.Caption();
    return form.play == frmGame::Play::Paused ? board + QStringLiteral(", paused") : board;
}

QString SkinInWords(const frmGame& form, std::int16_t slot) {
    if (slot >= form.SkinCount) return QStringLiteral("empty, drop a picture here for a new skin");
    const QString& file = form.skinFile[slot];
    return file.chopped(qMin<qsizetype>(4, file.size()));
}

std::function<QString()> Fixed(const char* text) {
    return [text] { return QString::fromLatin1(text); };
}
