#include "platform/pictures/PictureSheet.h"

#include <malloc.h>

#include <QBuffer>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImageReader>
#include <QPainter>
#include <new>

namespace {

QString Sentence(const QString& path, const QString& what) {
    return QStringLiteral("\"%1\" %2").arg(QFileInfo(path).fileName(), what);
}

QString WhyNotThisSize(const QSize& size) {
    if (!size.isValid()) return QStringLiteral("is not a picture the game can read.");
    const QString pixels = QStringLiteral("is %1 x %2 pixels; ").arg(size.width()).arg(size.height());
    if (size.isEmpty() || size.width() % kSheetColumns != 0 || size.height() % kSheetRows != 0)
        return pixels + QStringLiteral(
                            "a skin has 3 x 13 cells, so its width must be a multiple of 3 and its "
                            "height a multiple of 13.");
    if (qint64{size.width()} * size.height() > kMostSheetPixels)
        return pixels + QStringLiteral("a skin has at most 16 million pixels.");
    return {};
}

// Qt accepts truncated JPEGs, so look for the end-of-image marker.
bool IsCutShort(const QByteArray& format, const QByteArray& bytes) {
    return format == "jpeg" && !bytes.last(qMin<qsizetype>(bytes.size(), 64)).contains("\xFF\xD9");
}

// Qt reports a failed allocation only as a null image.
QImage Allocated(QImage image) {
    if (image.isNull()) throw std::bad_alloc();
    return image;
}

// Throws when there is no memory; a null image is one that cannot be read.
QImage Decode(const QByteArray& bytes) {
    QBuffer buffer;
    buffer.setData(bytes);
    QImageReader reader(&buffer);
    if (!WhyNotThisSize(reader.size()).isEmpty() || IsCutShort(reader.format(), bytes)) return {};
    // Allocate first: QImageReader does not distinguish out of memory from a damaged picture.
    (void)Allocated(QImage(reader.size(), QImage::Format_ARGB32));
    return reader.read();
}

QRect CellRect(const QSize& sheet, int cell) {
    const QSize size(sheet.width() / kSheetColumns, sheet.height() / kSheetRows);
    return {QPoint(cell % kSheetColumns * size.width(), cell / kSheetColumns * size.height()), size};
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
    const QImage sheet = Decode(bytes);
    if (sheet.isNull()) {
        why = Sentence(path, QStringLiteral("is damaged or incomplete."));
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
    if (cells_.empty() || cells_.front().devicePixelRatio() != scale) Cut(Decode(bytes_), scale);
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
