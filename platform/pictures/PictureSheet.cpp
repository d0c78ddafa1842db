#include "platform/pictures/PictureSheet.h"

#include <malloc.h>

#include <QBuffer>
#include <QDeadlineTimer>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImageReader>
#include <QPainter>
#include <QtEndian>
#include <algorithm>
#include <new>

namespace {

// How much of a file is read to tell whether it may be a sheet: the worst head of this length takes some
// milliseconds.
constexpr qint64 kStartBytes = qint64{4} * 1024;

QString Sentence(const QString& path, const QString& what) {
    return QStringLiteral("\"%1\" %2").arg(QFileInfo(path).fileName(), what);
}

QString WhyNotThisSize(const QSize& size) {
    if (!size.isValid()) return QStringLiteral("is not a picture the game can read.");
    const QString pixels = QStringLiteral("is %1 x %2 pixels; ").arg(size.width()).arg(size.height());
    if (size.width() < kSheetColumns || size.height() < kSheetRows)
        return pixels + QStringLiteral("a skin has 3 x 13 cells, so it has at least 3 x 13 pixels.");
    if (qint64{size.width()} * size.height() > kMostSheetPixels)
        return pixels + QStringLiteral("a skin has at most 16 million pixels.");
    return {};
}

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

// Qt accepts some truncated pictures, so look for the end that their formats prescribe. The last number of a
// plain PNM may have lost digits unless a space follows it.
bool IsCutShort(const QByteArray& format, const QByteArray& bytes) {
    const QByteArray tail = bytes.last(qMin<qsizetype>(bytes.size(), 64));
    if (format == "jpeg") return !tail.contains("\xFF\xD9");
    if (format == "png") return !tail.contains("IEND\xAE\x42\x60\x82");
    if (format == "gif") return !LeadsToTrailer(bytes);
    if (format == "xbm" || format == "xpm") return !tail.trimmed().endsWith("};");
    if (format == "webp") return bytes.size() < 8 + qint64{qFromLittleEndian<quint32>(bytes.data() + 4)};
    if (bytes.size() > 1 && bytes[0] == 'P' && bytes[1] >= '1' && bytes[1] <= '3')
        return !QChar::isSpace(uchar(tail.back()));
    return format == "bmp" && !HasAllRows(bytes);
}

// Whether the loader reads `format` as pixels. A drawing may name other files, and nothing bounds the time
// and the memory to draw it.
bool IsOfPixels(const QByteArray& format) {
    return !format.isEmpty() && !format.startsWith("svg");
}

// The format and the size in the head of a picture; the size is invalid when it cannot be read.
struct Head {
    explicit Head(QImageReader& reader) : format(reader.format()) {
        if (IsOfPixels(format)) size = reader.size();
        // A BMP whose rows come from the top has a negative height.
        if (format == "bmp" && size.height() >= -kMostSheetPixels) size.setHeight(qAbs(size.height()));
    }
    QByteArray format;  // asked for first: a reader that has failed knows none
    QSize size;
};

// The bytes of a picture, which run dry when their time is up: that ends any decoder, without ending a
// thread.
class ExpiringBytes final : public QIODevice {
public:
    ExpiringBytes(const QByteArray& bytes, QDeadlineTimer end) : bytes_(bytes), end_(end) {
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }
    qint64 size() const override { return bytes_.size(); }

protected:
    qint64 readData(char* to, qint64 most) override {
        if (end_.hasExpired()) return -1;
        const qint64 count = qMin(most, size() - pos());
        std::copy_n(bytes_.data() + pos(), count, to);
        return count;
    }
    qint64 writeData(const char*, qint64) override { return -1; }

private:
    QByteArray bytes_;
    QDeadlineTimer end_;
};

QImage Allocated(QImage image) {
    if (image.isNull()) throw std::bad_alloc();
    return image;
}

// A null image is one that cannot be read, and `why` the end of the sentence that says so. Throws when there
// is no memory.
QImage Decode(const QByteArray& bytes, QDeadlineTimer end, QString& why) {
    ExpiringBytes device(bytes, end);
    QImageReader reader(&device);
    const Head head(reader);
    why = WhyNotThisSize(head.size);
    if (!why.isEmpty()) return {};
    why = QStringLiteral("is damaged or incomplete.");
    if (IsCutShort(head.format, bytes)) return {};
    // Allocate first: QImageReader does not distinguish out of memory from a damaged picture.
    (void)Allocated(QImage(head.size, QImage::Format_ARGB32));
    const QImage image = reader.read();
    // A device that runs dry passes for the end of a JPEG, and the picture in an icon may have another size.
    if (end.hasExpired() || !WhyNotThisSize(image.size()).isEmpty()) return {};
    why.clear();
    return image;
}

// Edges that fall between two pixels are rounded, so the cells cover the sheet without a gap or an overlap.
QRect CellRect(const QSize& sheet, int cell) {
    const auto edge = [](int length, int number, int of) { return qRound(1.0 * length * number / of); };
    const int column = cell % kSheetColumns, row = cell / kSheetColumns;
    const int left = edge(sheet.width(), column, kSheetColumns);
    const int top = edge(sheet.height(), row, kSheetRows);
    return {left, top, edge(sheet.width(), column + 1, kSheetColumns) - left,
            edge(sheet.height(), row + 1, kSheetRows) - top};
}

QImage Fit(const QImage& cell, qreal scale) {
    const int side = qRound(kCellPixels * scale);
    QImage fitted = Allocated({side, side, QImage::Format_ARGB32_Premultiplied});
    fitted.fill(Qt::transparent);
    const QImage scaled = Allocated(cell.scaled(side, side, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    QPainter painter(&fitted);
    painter.drawImage((side - scaled.width()) / 2, (side - scaled.height()) / 2, scaled);
    painter.end();
    fitted.setDevicePixelRatio(scale);
    return fitted;
}

// A single picture of any resolution, fitted to the cell.
class FittedImage final : public PictureSource {
public:
    explicit FittedImage(QImage image) : image_(std::move(image)) {}
    QImage Render(int /*cell*/, qreal scale) const override { return Fit(image_, scale); }

private:
    QImage image_;
};

}  // namespace

QString WhyNotASheet(const QString& path) {
    const QFileInfo file(path);
    if (!file.isFile()) return Sentence(path, QStringLiteral("was not found."));
    if (file.size() > kMostSheetBytes)
        return Sentence(path, QStringLiteral("is larger than 64 megabytes, the most a skin may have."));
    QFile opened(path);
    if (!opened.open(QIODevice::ReadOnly)) return Sentence(path, QStringLiteral("cannot be opened."));
    QByteArray start = opened.read(kStartBytes);
    QBuffer buffer(&start);
    QImageReader reader(&buffer);
    const Head head(reader);
    const bool comesLater = !head.size.isValid() && IsOfPixels(head.format) && file.size() > kStartBytes;
    const QString why = comesLater ? QString() : WhyNotThisSize(head.size);
    return why.isEmpty() ? why : Sentence(path, why);
}

QString WhyTooSlow(const QString& path) {
    return Sentence(path, QStringLiteral("takes too long to read."));
}

std::shared_ptr<PictureSheet> PictureSheet::Load(const QString& path, QString& why) {
    why = WhyNotASheet(path);
    if (!why.isEmpty()) return nullptr;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        why = Sentence(path, QStringLiteral("cannot be opened."));
        return nullptr;
    }
    try {
        return FromBytes(file.read(qMin(file.size(), kMostSheetBytes)), path, why);
    } catch (const std::bad_alloc&) {
        why = Sentence(path, QStringLiteral("needs more memory than is available."));
        return nullptr;
    }
}

std::shared_ptr<PictureSheet> PictureSheet::FromBytes(const QByteArray& bytes, const QString& path,
                                                      QString& why) {
    const QDeadlineTimer end(kMostDecoding);
    const QImage sheet = Decode(bytes, end, why);
    if (sheet.isNull()) {
        why = end.hasExpired() ? WhyTooSlow(path) : Sentence(path, why);
        return nullptr;
    }
    std::shared_ptr<PictureSheet> loaded(new PictureSheet(bytes));
    const auto* windows = qobject_cast<const QGuiApplication*>(QCoreApplication::instance());
    loaded->Cut(sheet, windows ? windows->devicePixelRatio() : 1.0);
    loaded->first_ = sheet.copy(CellRect(sheet.size(), 0));
    return loaded;
}

// A freed sheet leaves holes in the heap; return them to the system.
PictureSheet::~PictureSheet() {
    cells_ = {};
    bytes_ = {};
    malloc_trim(0);
}

QImage PictureSheet::Render(int cell, qreal scale) const {
    if (cell < 0 || cell >= kSheetCells) return {};
    if (cells_.front().devicePixelRatio() != scale) Recut(scale);
    return cells_[static_cast<std::size_t>(cell)];
}

Picture PictureSheet::Thumbnail() const {
    return {std::make_shared<FittedImage>(first_), 0};
}

void PictureSheet::Cut(const QImage& sheet, qreal scale) const {
    std::vector<QImage> cells;  // all of them or, when memory ends, those before
    cells.reserve(kSheetCells);
    for (int cell = 0; cell < kSheetCells; ++cell)
        cells.push_back(Fit(sheet.copy(CellRect(sheet.size(), cell)), scale));
    cells_ = std::move(cells);
}

// The window waits for this, so a sheet that takes long is fitted from the cells there are.
void PictureSheet::Recut(qreal scale) const {
    QString why;
    const QImage sheet = Decode(bytes_, QDeadlineTimer(kMostRedrawing), why);
    if (!sheet.isNull()) return Cut(sheet, scale);
    for (QImage& cell : cells_) {
        cell.setDevicePixelRatio(1);
        cell = Fit(cell, scale);
    }
}
