#include "platform/pictures/WholePicture.h"

#include <QtEndian>

namespace {

// The pixels of a plain BMP, all of them, lie where its head says; a packed one has an end mark.
bool HasAllRows(const QByteArray& bytes) {
    const auto number = [&bytes](qsizetype at) {
        return qint64{qFromLittleEndian<qint32>(bytes.data() + at)};
    };
    if (bytes.size() < 34) return false;
    const qint64 row = (number(18) * (number(28) % 65536) + 31) / 32 * 4;
    const bool packed = number(30) == 1 || number(30) == 2;
    return packed ? bytes.endsWith(QByteArray("\0\1", 2))
                  : number(10) + row * qAbs(number(22)) <= bytes.size();
}

// Whether the blocks of a GIF, each of parts that begin with their length, lead to its trailer.
bool LeadsToTrailer(const QByteArray& bytes) {
    const auto at = [&bytes](qsizetype place) { return place < bytes.size() ? uchar(bytes[place]) : 0; };
    const auto table = [&at](qsizetype flags) { return at(flags) & 0x80 ? 6 << (at(flags) & 7) : 0; };
    qsizetype place = 13 + table(10);
    while (at(place) == ',' || at(place) == '!') {
        place += at(place) == ',' ? 11 + table(place + 9) : 2;
        while (at(place) > 0) place += 1 + at(place);
        ++place;
    }
    return at(place) == ';';
}

}  // namespace

bool IsCutShort(const QByteArray& format, const QByteArray& bytes) {
    const QByteArray tail = bytes.last(qMin<qsizetype>(bytes.size(), 64));
    if (format == "jpeg") return !tail.contains("\xFF\xD9");
    if (format == "png") return !tail.contains("IEND\xAE\x42\x60\x82");
    if (format == "gif") return !LeadsToTrailer(bytes);
    if (format == "xbm" || format == "xpm") return !tail.trimmed().endsWith("};");
    if (format == "webp") return bytes.size() < 8 + qint64{qFromLittleEndian<quint32>(bytes.data() + 4)};
    // The last number of a plain PNM may have lost digits unless a space follows it.
    if (bytes.size() > 1 && bytes[0] == 'P' && bytes[1] >= '1' && bytes[1] <= '3')
        return !QChar::isSpace(uchar(tail.back()));
    return format == "bmp" && !HasAllRows(bytes);
}
