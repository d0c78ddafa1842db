// Packs pictures for the program's resources: beside each "name.png" a "name.pixels".
//
// usage: pack_pixels PNG...

#include <QFile>
#include <cstdio>

#include "platform/pictures/PixelFile.h"

int main(int argc, char* argv[]) {
    for (int i = 1; i < argc; ++i) {
        const QString source = QString::fromLocal8Bit(argv[i]);
        const QImage image(source);
        QFile target(source.chopped(3) + "pixels");
        const bool written = !image.isNull() && target.open(QIODevice::WriteOnly) &&
                             target.write(PackPixels(image)) >= 0 && target.flush();
        if (!written) return std::fprintf(stderr, "pack_pixels: %s cannot be packed\n", argv[i]), 1;
    }
    return 0;
}
