#include "platform/pictures/PictureSheet.h"

#include <QFile>
#include <QGuiApplication>
#include <QPainter>
#include <new>

#include "platform/language/Tesselor.h"
#include "platform/memory/Memory.h"

namespace {

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

std::shared_ptr<PictureSheet> PictureSheet::Load(const QString& path, QString& why) {
    why = WhyNotASheet(path);
    if (!why.isEmpty()) return nullptr;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        why = AboutFile(path, Tesselor::tr("\"%1\" cannot be opened."));
        return nullptr;
    }
    try {
        return FromBytes(file.read(qMin(file.size(), kMostSheetBytes)), path, why);
    } catch (const std::bad_alloc&) {
        why = AboutFile(path, Tesselor::tr("\"%1\" needs more memory than is available."));
        return nullptr;
    }
}

std::shared_ptr<PictureSheet> PictureSheet::FromBytes(const QByteArray& bytes, const QString& path,
                                                      QString& why) {
    const QDeadlineTimer end(kMostDecoding);
    const QImage sheet = DecodeSheet(bytes, end, why);
    if (sheet.isNull()) {
        why = end.hasExpired() ? WhyTooSlow(path) : AboutFile(path, why);
        return nullptr;
    }
    std::shared_ptr<PictureSheet> loaded(new PictureSheet(bytes));
    const auto* windows = qobject_cast<const QGuiApplication*>(QCoreApplication::instance());
    loaded->Cut(sheet, windows ? windows->devicePixelRatio() : 1.0);
    loaded->first_ = sheet.copy(CellRect(sheet.size(), 0));
    return loaded;
}

PictureSheet::~PictureSheet() {
    cells_ = {};
    bytes_ = {};
    Memory::ReturnHoles();
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
    const QImage sheet = DecodeSheet(bytes_, QDeadlineTimer(kMostRedrawing), why);
    if (!sheet.isNull()) return Cut(sheet, scale);
    for (QImage& cell : cells_) {
        cell.setDevicePixelRatio(1);
        cell = Fit(cell, scale);
    }
}
