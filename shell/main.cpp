#include <QApplication>

#include "shell/CommandLine.h"
#include "shell/mdlMain.h"

int main(int argc, char* argv[]) {
    if (const auto status = AnswerCommandLine(argc, argv)) return *status;
    QApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Tesselor"));
    QApplication::setDesktopFileName(QStringLiteral("tesselor"));
    return mdlMain::Main();
}
