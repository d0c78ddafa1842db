// The window in words: how its controls describe themselves to assistive technology.

#include "screen/Spoken.h"

#include <QLocale>
#include <algorithm>

#include "screen/Links.h"
#include "screen/frmGame.h"

namespace {

using Words = std::function<QString()>;

Words Fixed(const char* text) {
    return [text] { return QString::fromLatin1(text); };
}

int Kind(const PictureBox& box) {
    return box.Picture().IsEmpty() ? -1 : box.Picture().Cell();
}

const PictureBox& Cell(const frmGame& form, int cell) {
    return form.picMat[static_cast<std::size_t>(cell)];
}

bool HasBox(const PictureBox& box, Colour colour) {
    const auto& drawings = box.Contents().drawings;
    return std::any_of(drawings.begin(), drawings.end(), [colour](const auto& drawing) {
        const auto* drawn = std::get_if<DrawnBox>(&drawing);
        return drawn && drawn->colour == colour;
    });
}

QString ContentsInWords(const frmGame& form, int cell) {
    const PictureBox& box = Cell(form, cell);
    if (Kind(box) < 0) return QStringLiteral("empty");
    if (!IsActive(form, cell))
        return IsLocked(form, cell) ? CardInWords(Kind(box)) : QStringLiteral("covered");
    QString active = CardInWords(Kind(box)) + QStringLiteral(", active card");
    if (HasBox(box, kButtonFace))
        active += QStringLiteral(", shaded, over ") + CardInWords(Kind(form.picTemp));
    return active;
}

QString CellInWords(const frmGame& form, int cell) {
    QString place = PlaceInWords(cell);
    place[0] = place[0].toUpper();
    return QStringLiteral("%1: %2").arg(place, ContentsInWords(form, cell));
}

QString NextCardInWords(const frmGame& form) {
    const int kind = Kind(form.picPreview);
    const bool dealt = kind >= 0 && form.play != frmGame::Play::Off;
    return QStringLiteral("Next card: ") + (dealt ? CardInWords(kind) : QStringLiteral("none"));
}

QString BoardInWords(const frmGame& form) {
    const QString board = QStringLiteral("Board, level ") + form.lblLevelName.Caption();
    return form.play == frmGame::Play::Paused ? board + QStringLiteral(", paused") : board;
}

QString CardsLeftInWords(const frmGame& form) {
    const QString cards = form.lblCardsLeft.Caption();
    return cards +
           (cards == QLatin1String("1") ? QStringLiteral(" card left") : QStringLiteral(" cards left"));
}

QString NameInWords(int place, const QString& name) {
    return QStringLiteral("Place %1: %2").arg(place).arg(name.isEmpty() ? QStringLiteral("no name") : name);
}

QString SkinInWords(const frmGame& form, std::size_t slot) {
    if (static_cast<std::int16_t>(slot) >= form.SkinCount)
        return QStringLiteral("empty, drop a picture here for a new skin");
    const QString& file = form.skinFile[slot];
    return file.chopped(qMin<qsizetype>(4, file.size()));
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

bool IsActive(const frmGame& form, int cell) {
    return HasBox(Cell(form, cell), kRed);
}

bool IsLocked(const frmGame& form, int cell) {
    const int kind = Kind(Cell(form, cell));
    return kind >= 0 && kind <= kLastOrdinaryKind && !IsActive(form, cell);
}

void frmGame::DescribeControls() {
    access = {QAccessible::Window, Fixed("Tesselor")};
    DescribeBoard();
    DescribeMenu();
    DescribeScreens();
    for (Label* shadow : {&lblNextCard, &lblCaption[4], &Label6, &Label7}) shadow->access = {};
    txtName.setAccessibleName(Label3.Caption());
}

void frmGame::DescribeBoard() {
    fraScreen[0].access = {QAccessible::List, [this] { return BoardInWords(*this); }};
    for (std::size_t i = 0; i < picMat.size(); ++i) {
        const int cell = static_cast<int>(i);
        picMat[i].access = {QAccessible::ListItem, [this, cell] { return CellInWords(*this, cell); },
                            [this, cell] { LockInCell(static_cast<std::int16_t>(cell)); },
                            [this, cell] { return IsActive(*this, cell); }};
    }
    picPreview.access = {QAccessible::Graphic, [this] { return NextCardInWords(*this); }};
    lblScore.access.name = [this] { return QStringLiteral("Score ") + lblScore.Caption(); };
    lblCardsLeft.access.name = [this] { return CardsLeftInWords(*this); };
    prbTime.access = {
        QAccessible::ProgressBar, Fixed("Time used"), {}, {}, [this] { return int(prbTime.Value()); }};
}

void frmGame::DescribeMenu() {
    constexpr const char* kActions[] = {"Starts a new game", "Choose a level and a skin",
                                        "How the game is played", "The four best games",
                                        "Opens the rules of the game"};
    for (std::size_t i = 0; i < imgButton.size(); ++i) {
        const auto index = static_cast<std::int16_t>(i);
        imgButton[i].access = {QAccessible::PushButton, [this, i] { return lblCaption[i].Caption(); },
                               [this, index] { imgButton_Click(index); }};
        imgButton[i].setAccessibleDescription(QLatin1String(kActions[i]));
    }
    Image1.access = {QAccessible::PushButton, Fixed("exit"), [this] { Image1_Click(); }};
    imgMinimaize.access = {QAccessible::PushButton, Fixed("minimise"), [this] { imgMinimaize_Click(); }};
    imgWebLink.access = {QAccessible::Link, [] { return Links::kHomeText; }, [this] { imgWebLink_Click(); }};
    const auto describeLink = [](Label& link, std::function<void()> open) {
        link.access.role = QAccessible::Link;
        link.access.press = std::move(open);
    };
    describeLink(Label17, [this] { Label17_Click(); });
    describeLink(Label14, [this] { Label14_Click(); });
    describeLink(Label4, [this] { Label4_Click(); });
}

void frmGame::DescribeScreens() {
    constexpr const char* kScreens[] = {"levels and skins", "help", "high scores"};
    for (std::size_t i = 1; i < fraScreen.size(); ++i)
        fraScreen[i].access = {QAccessible::Grouping, Fixed(kScreens[i - 1])};
    Picture3.access = {QAccessible::Grouping, [this] { return Label6.Caption().trimmed(); }};
    for (std::size_t i = 0; i < lblClass.size(); ++i) {
        const auto level = static_cast<std::int16_t>(i);
        lblClass[i].access.role = QAccessible::RadioButton;
        lblClass[i].access.press = [this, level] { lblClass_Click(level); };
        lblClass[i].access.chosen = [this, level] { return CurrentLevel == level; };
    }
    Picture1.access = {QAccessible::Grouping, [this] { return Label7.Caption(); }};
    for (std::size_t i = 0; i < picSkin.size(); ++i) {
        const auto slot = static_cast<std::int16_t>(i);
        picSkin[i].access = {QAccessible::RadioButton, [this, i] { return SkinInWords(*this, i); },
                             [this, slot] { picSkin_MouseUp(slot, kLeftButton, 0, 0, 0); },
                             [this, slot] { return slot < SkinCount && CurrentSkin == slot; }};
    }
    lblSkinName.access.name = [this] { return QStringLiteral("Skin ") + lblSkinName.Caption(); };
    for (std::size_t row = 0; row < lblName.size(); ++row) {
        lblName[row].access.name = [this, row] {
            return NameInWords(static_cast<int>(row) + 1, lblName[row].Caption());
        };
        lblDate[row].access.name = [this, row] { return QStringLiteral("Date ") + lblDate[row].Caption(); };
        lblHighScore[row].access.name = [this, row] {
            return QStringLiteral("Score ") + lblHighScore[row].Caption();
        };
    }
    for (Label& key : lblKey) key.access = {};  // said with what it does
    lblHelpText2.access.name = Fixed("Move the card: arrow keys or mouse");
    lblHelpText3.access.name = Fixed("Lock the card: space bar or left mouse button");
    lblHelpText4.access.name = Fixed("Pause and resume: P or right mouse button");
    picEnterName.access = {QAccessible::Dialog, [this] { return Label3.Caption(); }};
}
