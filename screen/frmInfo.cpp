#include "screen/frmInfo.h"

#include <QFileInfo>
#include <QKeyEvent>
#include <QScrollBar>
#include <QTextBlock>

#include "platform/fonts/Fonts.h"
#include "platform/language/Language.h"
#include "platform/language/Tesselor.h"
#include "screen/Look.h"
#include "shell/mdlSound.h"

namespace {

constexpr TwipsRect kWindow{0, 0, 4710, 5820};
constexpr TwipsRect kText{150, 150, 4410, 4980};
constexpr qreal kPadding = 9;  // between the text and the edge of its sheet
// The most that is shown of the file: far more than the rules, and quick to lay out.
constexpr qint64 kMostBytes = qint64{512} * 1024;

// The player's own text, else the translation that comes with the program, else the English text.
QString RulesFile(const ProgramFolder& folder) {
    const QString english = folder.Path(QStringLiteral("\\Res\\Tesselor rules.txt"));
    const QString translated =
        folder.Path(QStringLiteral("\\Res\\Tesselor rules.%1.txt").arg(ChosenLanguage()));
    const bool isOwn =
        QFileInfo::exists(english) && QFileInfo(english).path() != QFileInfo(translated).path();
    return QFileInfo::exists(translated) && !isOwn ? translated : english;
}

QString RulesText(const QString& path) {
    // Regular files only: opening a FIFO would block.
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) return {};
    QString text = QString::fromUtf8(file.read(kMostBytes));
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    if (!file.atEnd()) text += QStringLiteral("\n[...]");
    return text;
}

// Headings are lines in capitals, and in scripts that have none the lines behind two empty ones.
bool IsHeading(const QTextBlock& block) {
    const QString line = block.text();
    if (line != line.toLower()) return line == line.toUpper();
    const QTextBlock above = block.previous();
    const bool startsPart = !above.isValid() || (above.text().isEmpty() && above.previous().isValid() &&
                                                 above.previous().text().isEmpty());
    return startsPart && line == line.toUpper() && !line.isEmpty();
}

void DressHeadings(QTextDocument& document) {
    QTextCharFormat heading;
    heading.setFontWeight(QFont::DemiBold);
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        if (!IsHeading(block)) continue;
        QTextCursor cursor(block);
        cursor.select(QTextCursor::BlockUnderCursor);
        cursor.mergeCharFormat(heading);
    }
}

// Without a frame on Wayland: some compositors give it no button, others leave it to Qt, whose buttons do
// more than a dialog can.
Qt::WindowFlags Kind() {
    return WindowShape::IsOnWayland() ? Qt::Dialog | Qt::FramelessWindowHint : Qt::Dialog;
}

}  // namespace

frmInfo::frmInfo(QWidget* owner, const ProgramFolder& folder)
    : QWidget(owner, Kind()),
      shpArea(this, {QStringLiteral("shpArea"), {1830, 5280, 1095, 375}, {}}),
      lblCaption(this, {QStringLiteral("lblCaption"), {1830, 5295, 1095, 345}, Tesselor::tr("OK")}),
      imgButton(this, {QStringLiteral("imgButton"), {1830, 5280, 1095, 375}, {}}) {
    // Before Qt tells of the window's title.
    access = {QAccessible::Dialog, [] { return Tesselor::tr("The rules of the game"); }};
    setObjectName(QStringLiteral("frmInfo"));
    setWindowTitle(QStringLiteral("Tesselor"));
    setFixedSize(kWindow.InPixels().size());
    setMouseTracking(true);
    Text1.setObjectName(QStringLiteral("Text1"));
    Text1.setGeometry(kText.InPixels());
    Text1.setReadOnly(true);
    // The keyboard moves a visible cursor through the text.
    Text1.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    DressControls();
    imgButton.onMouseMove = [this](const MouseInput& in) {
        imgButton_MouseMove(in.button, in.shift, in.x, in.y);
    };
    imgButton.onClick = [this] { imgButton_Click(); };
    lblCaption.access = {};
    imgButton.access = {QAccessible::PushButton, [this] { return lblCaption.Caption(); },
                        [this] { imgButton_Click(); }};
    imgButton.setFocusPolicy(Qt::TabFocus);
    Text1.setTabChangesFocus(true);
    Form_Load(folder);
}

void frmInfo::Form_Load(const ProgramFolder& folder) {
    const QString text = RulesText(RulesFile(folder));
    Fonts::ListAllFor(text);
    Text1.setPlainText(text);
    DressHeadings(*Text1.document());
}

void frmInfo::DressControls() {
    Background.Picture(WindowArt(QStringLiteral("sheet")));
    Background.setAttribute(Qt::WA_TransparentForMouseEvents);
    DressText();
    shpArea.Look(Look::kBrass, QColor(0x1B, 0x2A, 0x4E), 6);
    lblCaption.setFont(Look::Font(Look::Text::Heading));
    lblCaption.Alignment(Qt::AlignCenter);
    lblCaption.ForeColor(kWhite);
    imgButton.setCursor(Qt::PointingHandCursor);
    imgButton.ShowsPress(true);
    imgButton.HoverPicture(WindowArt(QStringLiteral("ok-hover")));
    imgButton.PressedPicture(WindowArt(QStringLiteral("ok-pressed")));
}

// An ivory sheet, and beside it a scroll bar of brass on stone.
void frmInfo::DressText() {
    Text1.setFrameShape(QFrame::NoFrame);
    Text1.document()->setDocumentMargin(kPadding);
    QPalette sheet = Text1.palette();
    sheet.setColor(QPalette::Base, QColor(0xFB, 0xF6, 0xE9));
    Text1.setPalette(sheet);
    QPalette brass = sheet;
    brass.setColor(QPalette::Window, QColor(0xD9, 0xCF, 0xB6));
    brass.setColor(QPalette::Button, QColor(0xDC, 0xC0, 0x7C));
    Text1.verticalScrollBar()->setPalette(brass);
}

void frmInfo::Form_MouseMove(std::int16_t, std::int16_t, float, float) {
    lblCaption.ForeColor(kWhite);
}

void frmInfo::imgButton_MouseMove(std::int16_t, std::int16_t, float, float) {
    lblCaption.ForeColor(Look::kLitCaption);
}

void frmInfo::imgButton_Click() {
    mdlSound::PlayWave(mdlSound::Wave(111));
    close();
}

void frmInfo::mousePressEvent(QMouseEvent* event) {
    move_.Press(*this, event->globalPosition().toPoint(), ToMouseInput(*event).button);
}

void frmInfo::mouseMoveEvent(QMouseEvent* event) {
    const MouseInput in = ToMouseInput(*event);
    Form_MouseMove(in.button, in.shift, in.x, in.y);
    move_.Move(*this, event->globalPosition().toPoint());
}

void frmInfo::mouseReleaseEvent(QMouseEvent* /*event*/) {
    move_.Release();
}

void frmInfo::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) close();
    AnswerKey(*this, *event);
}
