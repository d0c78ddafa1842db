#include "platform/PictureSheet.h"

#include <QBuffer>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImageReader>
#include <QPainter>

namespace {

QString Sentence(const QString& path, const QString& what) {
    return QStringLiteral("\"%1\" %2").arg(QFileInfo(path).fileName(), what);
}

QString WhyNotThisSize(const QSize& size) {
    if (!size.isValid()) return QStringLiteral("is not a picture that can be read here.");
    if (size.width() < kSheetColumns || size.height() < kSheetRows)
        return QStringLiteral(
                   "is %1 x %2 pixels; a skin is 3 cells wide and 13 high, at least 3 x 13 pixels.")
            .arg(size.width())
            .arg(size.height());
    if (qint64{size.width()} * size.height() > kMostSheetPixels)
        return QStringLiteral("is %1 x %2 pixels; a skin has at most 16 million pixels.")
            .arg(size.width())
            .arg(size.height());
    return {};
}

QImage Decode(const QByteArray& bytes) {
    QBuffer buffer;
    buffer.setData(bytes);
    QImageReader reader(&buffer);
    return WhyNotThisSize(reader.size()).isEmpty() ? reader.read() : QImage();
}

// Cell `cell` of a sheet whose size need not divide evenly: edges are rounded, so no pixel row is lost.
QRect CellRect(const QSize& sheet, int cell) {
    const int row = cell / kSheetColumns, column = cell % kSheetColumns;
    const int left = sheet.width() * column / kSheetColumns, top = sheet.height() * row / kSheetRows;
    const int right = sheet.width() * (column + 1) / kSheetColumns;
    const int bottom = sheet.height() * (row + 1) / kSheetRows;
    return {left, top, right - left, bottom - top};
}

QImage Fit(const QImage& cell, qreal scale) {
    const int side = qRound(kCellPixels * scale);
    QImage fitted(side, side, QImage::Format_ARGB32_Premultiplied);
    fitted.fill(Qt::transparent);
    const QImage scaled = cell.scaled(side, side, Qt::KeepAspectRatio, Qt::SmoothTransformation);
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
    if (!file.isFile()) return Sentence(path, QStringLiteral("is not there."));
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
    const QByteArray bytes = file.open(QIODevice::ReadOnly) ? file.read(kMostSheetBytes) : QByteArray();
    const QImage sheet = Decode(bytes);
    if (sheet.isNull()) {
        why = Sentence(path, QStringLiteral("is damaged: its picture cannot be read to the end."));
        return nullptr;
    }
    std::shared_ptr<PictureSheet> loaded(new PictureSheet(bytes));
    const auto* windows = qobject_cast<const QGuiApplication*>(QCoreApplication::instance());
    loaded->Cut(sheet, windows ? windows->devicePixelRatio() : 1.0);
    loaded->first_ = sheet.copy(CellRect(sheet.size(), 0));
    return loaded;
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
    for (int cell = 0; cell < kSheetCells; ++cell)
        cells_.push_back(Fit(sheet.copy(CellRect(sheet.size(), cell)), scale));
}
