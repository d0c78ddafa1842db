#include "screen/Words.h"

#include "platform/language/Tesselor.h"
#include "screen/frmGame.h"

namespace {

QString ContentsInWords(const frmGame& form, std::int16_t cell) {
    if (form.boardCovered) return Tesselor::tr("covered", "cell of the board");
    QString locked = form.IsOccupied(cell) ? CardInWords(form.Game().CardAt(cell).Number)
                                           : Tesselor::tr("empty", "cell of the board");
    if (!form.IsActive(cell)) return locked;
    const QString active = CardInWords(form.Game().CurrentCard());
    if (!form.IsOccupied(cell)) return Tesselor::tr("%1, active card", "a card").arg(active);
    // The next key silences the rest, so what the player does not know yet comes first: a new card, or what a
    // moved one lies on.
    return (cell == kStartCell ? Tesselor::tr("%1, active card, over %2", "two cards")
                               : Tesselor::tr("over %2, active card %1", "two cards"))
        .arg(active, locked);
}

}  // namespace

QString CardInWords(int kind) {
    if (kind > kLastOrdinaryKind || kind < 0) return Tesselor::tr("eraser");
    static const CardKinds kinds = MakeCardKinds();
    const CardInfo& card = kinds[static_cast<std::size_t>(kind / 3)][static_cast<std::size_t>(kind % 3)];
    return Tesselor::tr("shape %1, colour %2, quantity %3")
        .arg(card.AttrA)
        .arg(card.AttrB)
        .arg(card.Quantity);
}

QString CellInWords(const frmGame& form, std::int16_t cell) {
    return Tesselor::tr("Row %1, column %2: %3")
        .arg(RowOf(cell))
        .arg(ColumnOf(cell))
        .arg(ContentsInWords(form, cell));
}

QString NextCardInWords(const frmGame& form) {
    if (form.play == frmGame::Play::Off) return Tesselor::tr("Next card: none");
    return Tesselor::tr("Next card: %1").arg(CardInWords(form.nextCardShown));
}

QString BoardInWords(const frmGame& form) {
    const bool paused = form.play == frmGame::Play::Paused;
    return (paused ? Tesselor::tr("Board, level %1, paused") : Tesselor::tr("Board, level %1"))
        .arg(form.lblLevelName.Caption());
}

QString SkinInWords(const frmGame& form, std::int16_t slot) {
    if (slot >= form.SkinCount)
        return Tesselor::tr("empty, drop a picture here for a new skin", "slot of the menu");
    const QString& file = form.skinFile[slot];
    return file.chopped(qMin<qsizetype>(4, file.size()));
}

std::function<QString()> Fixed(const QString& text) {
    return [text] { return text; };
}
