#include "platform/desktop/Dialogs.h"

#include <QCoreApplication>
#include <QMessageBox>
#include <QPushButton>

#include "platform/fonts/Fonts.h"
#include "platform/pictures/Picture.h"

namespace {

int Show(QWidget* owner, const QString& icon, const QString& text, QMessageBox::StandardButtons buttons,
         QMessageBox::StandardButton byDefault) {
    Fonts::ListAllFor(text);
    QMessageBox box(QMessageBox::NoIcon, QCoreApplication::applicationName(), text, buttons, owner);
    box.setTextFormat(Qt::PlainText);  // a file name must not be parsed as markup
    box.setIconPixmap(QPixmap::fromImage(WindowArt(icon).At(box.devicePixelRatioF())));
    for (QAbstractButton* button : box.buttons()) button->setIcon({});
    box.setDefaultButton(byDefault);
    return box.exec();
}

}  // namespace

void MessageBoxes::Tell(QWidget* owner, const QString& sentence) {
    Show(owner, QStringLiteral("notice"), sentence, QMessageBox::Ok, QMessageBox::Ok);
}

bool MessageBoxes::Ask(QWidget* owner, const QString& question) {
    return Show(owner, QStringLiteral("information"), question, QMessageBox::Yes | QMessageBox::No,
                QMessageBox::No) == QMessageBox::Yes;
}
