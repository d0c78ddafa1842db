#include "platform/pictures/PictureSheet.h"

#include <malloc.h>

#include <QDeadlineTimer>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImageReader>
#include <QPainter>
#include <QtEndian>
#include <algorithm>
#include <new>

namespace {

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

// Qt accepts some truncated pictures, so look for the end that their formats prescribe.
bool IsCutShort(const QByteArray& format, const QByteArray& bytes) {
    const QByteArray tail = bytes.last(qMin<qsizetype>(bytes.size(), 64));
    if (format == "jpeg") return !tail.contains("\xFF\xD9");
    if (format == "gif") return !tail.endsWith(';');
    if (format == "xbm" || format == "xpm") return !tail.trimmed().endsWith("};");
    return format == "bmp" && !HasAllRows(bytes);
}

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

// Throws when there is no memory; a null image is one that cannot be read.
QImage Decode(const QByteArray& bytes, QDeadlineTimer end) {
    ExpiringBytes device(bytes, end);
    QImageReader reader(&device);
    if (!WhyNotThisSize(reader.size()).isEmpty() || IsCutShort(reader.format(), bytes)) return {};
    // Allocate first: QImageReader does not distinguish out of memory from a damaged picture.
    (void)Allocated(QImage(reader.size(), QImage::Format_ARGB32));
    const QImage image = reader.read();
    return end.hasExpired() ? QImage() : image;  // a device that runs dry passes for the end of a JPEG
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
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    const QString why = WhyNotThisSize(reader.size());
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
    const QImage sheet = Decode(bytes, end);
    if (sheet.isNull()) {
        why =
            end.hasExpired() ? WhyTooSlow(path) : Sentence(path, QStringLiteral("is damaged or incomplete."));
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
    if (cells_.empty() || cells_.front().devicePixelRatio() != scale)
        Cut(Decode(bytes_, QDeadlineTimer(kMostDecoding)), scale);
    return cells_[static_cast<std::size_t>(cell)];
}

Picture PictureSheet::Thumbnail() const {
    return {std::make_shared<FittedImage>(first_), 0};
}

void PictureSheet::Cut(const QImage& sheet, qreal scale) const {
    cells_.clear();
    std::vector<QImage> cells;  // all of them or, when memory ends, none
    cells.reserve(kSheetCells);
    for (int cell = 0; cell < kSheetCells; ++cell)
        cells.push_back(Fit(sheet.copy(CellRect(sheet.size(), cell)), scale));
    cells_ = std::move(cells);
}
