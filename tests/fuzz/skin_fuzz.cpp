// Feeds damaged files to the loading of skins: whatever a file holds, it is refused with a sentence or cut
// into cells, and memory stays bounded.

#include <QGuiApplication>
#include <QImageReader>

#include "platform/PictureSheet.h"
#include "tests/fuzz/Fuzz.h"

extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/) {
    StartApplication<QGuiApplication>();
    QImageReader::setAllocationLimit(96);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    const QString path = Folder().filePath(QStringLiteral("skin"));
    WriteFile(path, Bytes(data, size));
    QString why;
    const auto sheet = PictureSheet::Load(path, why);
    Require((sheet == nullptr) == !why.isEmpty());
    if (!sheet) return 0;
    for (const int cell : {0, 38, 39}) Require(sheet->Render(cell, 1.5).isNull() == (cell == 39));
    Require(sheet->Thumbnail().At(1).size() == QSize(60, 60));
    return 0;
}
