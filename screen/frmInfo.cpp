#include "screen/frmInfo.h"

#include <QFile>
#include <QKeyEvent>

#include "screen/Look.h"
#include "shell/mdlSound.h"

namespace {

constexpr TwipsRect kWindow{0, 0, 4710, 5820};
constexpr TwipsRect kText{150, 150, 4410, 4980};
// The most of the file that is shown: far more than a manual, and little enough to lay out at once.
constexpr qint64 kMostBytes = qint64{512} * 1024;

QString RulesText(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return {};
    QString text = QString::fromUtf8(file.read(kMostBytes));
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    if (!file.atEnd()) text += QStringLiteral("\n[...]");
    return text;
}

}  // namespace

frmInfo::frmInfo(QWidget* owner, const ProgramFolder& folder)
    : QWidget(owner, Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint),
      shpArea(this, {QStringLiteral("shpArea"), {1830, 5280, 1095, 375}, {}}),
      lblCaption(this, {QStringLiteral("lblCaption"), {1830, 5295, 1095, 345}, QStringLiteral("OK")}),
      imgButton(this, {QStringLiteral("imgButton"), {1830, 5280, 1095, 375}, {}}) {
    setObjectName(QStringLiteral("frmInfo"));
    setWindowTitle(QStringLiteral("Tesselor"));
    setFixedSize(kWindow.InPixels().size());
    setMouseTracking(true);
    Text1.setObjectName(QStringLiteral("Text1"));
    Text1.setGeometry(kText.InPixels());
    Text1.setReadOnly(true);
    // A reader moves through the text with the keys, and sees where.
    Text1.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    shpArea.Look(QColor(0xC9, 0xA2, 0x4B), QColor(0x1B, 0x2A, 0x4E), 6);
    lblCaption.setAlignment(Qt::AlignCenter);
    lblCaption.ForeColor(kWhite);
    imgButton.setCursor(Qt::PointingHandCursor);
    imgButton.onMouseMove = [this](const MouseInput& in) {
        imgButton_MouseMove(in.button, in.shift, in.x, in.y);
    };
    imgButton.onClick = [this] { imgButton_Click(); };
    access = {QAccessible::Dialog, [] { return QStringLiteral("The rules of the game"); }, {}, {}, {}};
    lblCaption.access = {};
    imgButton.access = {QAccessible::PushButton,
                        [this] { return lblCaption.Caption(); },
                        [this] { imgButton_Click(); },
                        {},
                        {}};
    imgButton.setFocusPolicy(Qt::TabFocus);
    Text1.setTabChangesFocus(true);
    Form_Load(folder);
}

void frmInfo::Form_Load(const ProgramFolder& folder) {
    Text1.setPlainText(RulesText(folder.Path(QStringLiteral("\\Res\\Tesselor rules.txt"))));
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

void frmInfo::mouseMoveEvent(QMouseEvent* event) {
    const MouseInput in = ToMouseInput(*event);
    Form_MouseMove(in.button, in.shift, in.x, in.y);
}

void frmInfo::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) close();
    AnswerKey(*this, *event);
}
