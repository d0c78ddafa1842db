#include "platform/pictures/PixelFile.h"

#include <QResource>
#include <cstring>
#include <memory>

namespace {

struct Head {
    qint32 width, height, format, unused;  // four, so that the pixels start at a place that is fast to read
};

}  // namespace

QByteArray PackPixels(const QImage& image) {
    const auto format = image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32;
    const QImage pixels = image.convertToFormat(format);
    const Head head{pixels.width(), pixels.height(), format, 0};
    QByteArray bytes(reinterpret_cast<const char*>(&head), sizeof head);
    return bytes.append(reinterpret_cast<const char*>(pixels.constBits()), pixels.sizeInBytes());
}

QImage PackedPixels(const QString& name) {
    auto bytes = std::make_unique<QByteArray>(QResource(":/" + name + ".pixels").uncompressedData());
    Head head{};
    if (bytes->size() < qsizetype(sizeof head)) return {};
    std::memcpy(&head, bytes->constData(), sizeof head);
    const auto* const pixels = reinterpret_cast<const uchar*>(bytes->constData()) + sizeof head;
    const auto release = [](void* kept) { delete static_cast<QByteArray*>(kept); };
    return {pixels,
            head.width,
            head.height,
            qsizetype{4} * head.width,
            static_cast<QImage::Format>(head.format),
            release,
            bytes.release()};
}
