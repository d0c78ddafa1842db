#include "shell/frmIcon.h"

#include <QGuiApplication>

#include "platform/language/Tesselor.h"

namespace {

constexpr Twips kWidth = 5400, kHeight = 2850;

Placement Line(const char* name, Twips top, const QString& caption) {
    return {QString::fromLatin1(name), {0, top, kWidth, 360}, caption};
}

}  // namespace

frmIcon::frmIcon()
    : Label1(this, Line("Label1", 300, Tesselor::tr("Important notice!"))),
      Label2(this, Line("Label2", 840, Tesselor::tr("This application works with small fonts only"))),
      Label3(this, Line("Label3", 1200, Tesselor::tr("Please change your system to \"Small Fonts\""))),
      Label4(this, Line("Label4", 1560, Tesselor::tr("in the Windows Setting System"))),
      Command1(this, {QStringLiteral("Command1"), {2100, 2130, 1200, 450}, Tesselor::tr("OK")}) {
    setWindowTitle(QGuiApplication::applicationDisplayName());
    setFixedSize(TwipsRect{0, 0, kWidth, kHeight}.InPixels().size());
    for (Label* label : {&Label1, &Label2, &Label3, &Label4}) {
        label->Alignment(Qt::AlignCenter);
        label->ForeColor(0x643420);
    }
    QFont bold = Label1.font();
    bold.setBold(true);
    Label1.setFont(bold);
    Command1.setDefault(true);
    connect(&Command1, &QPushButton::clicked, this, &QDialog::accept);
}
