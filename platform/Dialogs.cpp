#include "platform/Dialogs.h"

#include <QCoreApplication>
#include <QMessageBox>

namespace {

int Show(QWidget* owner, QMessageBox::Icon icon, const QString& text, QMessageBox::StandardButtons buttons) {
    QMessageBox box(icon, QCoreApplication::applicationName(), text, buttons, owner);
    box.setTextFormat(Qt::PlainText);  // a file name is never taken for markup
    return box.exec();
}

}  // namespace

void MessageBoxes::Tell(QWidget* owner, const QString& sentence) {
    Show(owner, QMessageBox::Warning, sentence, QMessageBox::Ok);
}

bool MessageBoxes::Ask(QWidget* owner, const QString& question) {
    return Show(owner, QMessageBox::Information, question, QMessageBox::Yes | QMessageBox::No) ==
           QMessageBox::Yes;
}
