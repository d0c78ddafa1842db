#include <malloc.h>

#include <QApplication>

#include "shell/CommandLine.h"
#include "shell/mdlMain.h"

int main(int argc, char* argv[]) {
    if (const auto status = AnswerCommandLine(argc, argv)) return *status;
    mallopt(M_MMAP_THRESHOLD, 1 << 20);  // a decoded picture goes back to the system, not to the heap
    QApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Tesselor"));
    QApplication::setDesktopFileName(QStringLiteral("tesselor"));
    return mdlMain::Main();
}
