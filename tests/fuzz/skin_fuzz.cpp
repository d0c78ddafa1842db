// Feeds damaged files to the loading of skins: whatever a file holds, it is refused with a sentence or cut
// into cells, and memory stays bounded.

#include <QBuffer>
#include <QGuiApplication>
#include <QImageReader>
#include <QTemporaryFile>

#include "platform/PictureSheet.h"

namespace {

QGuiApplication& Application() {
    static int argc = 3;
    static char name[] = "fuzz", option[] = "-platform", value[] = "offscreen";
    static char* argv[] = {name, option, value, nullptr};
    static QGuiApplication application(argc, argv);
    return application;
}

QTemporaryFile& SkinFile() {
    static QTemporaryFile file(QStringLiteral("/dev/shm/skin-XXXXXX"));
    static const bool isOpen = file.open();
    if (!isOpen) std::abort();
    return file;
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/) {
    Application();
    QImageReader::setAllocationLimit(96);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    QTemporaryFile& file = SkinFile();
    file.resize(0);
    file.seek(0);
    file.write(reinterpret_cast<const char*>(data), static_cast<qint64>(size));
    file.flush();
    QString why;
    const auto sheet = PictureSheet::Load(file.fileName(), why);
    if ((sheet == nullptr) == why.isEmpty()) std::abort();
    if (!sheet) return 0;
    for (const int cell : {0, 38, 39})
        if (sheet->Render(cell, 1.5).isNull() != (cell == 39)) std::abort();
    if (sheet->Thumbnail().At(1).size() != QSize(60, 60)) std::abort();
    return 0;
}
