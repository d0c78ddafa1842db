// Feeds damaged files to the information window: whatever a file holds, the window shows its text, with no
// more than the weight of headings changed, and is painted.

#include <QApplication>
#include <QDir>
#include <QPlainTextDocumentLayout>

#include "screen/Look.h"
#include "screen/frmInfo.h"
#include "tests/fuzz/Fuzz.h"

extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/) {
    StartApplication<QApplication>();
    Look::Apply(*qApp);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    const QByteArray bytes = Bytes(data, size);
    Require(QDir(Folder().path()).mkpath(QStringLiteral("Res")));
    WriteFile(Folder().filePath(QStringLiteral("Res/Tesselor rules.txt")), bytes);
    frmInfo info(nullptr, ProgramFolder(Folder().path()));
    QTextDocument plain;
    plain.setPlainText(QString::fromUtf8(bytes).replace(QLatin1String("\r\n"), QLatin1String("\n")));
    Require(info.Text1.toPlainText() == plain.toPlainText());
    Require(info.grab().size() == QSize(314, 388));
    return 0;
}
