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

// For the largest scale that the command line takes.
constexpr int kMostThumbnail = 4 * kCellPixels;

Picture FirstCell(const QImage& sheet) {
    QImage cell = sheet.copy(CellRect(sheet.size(), 0));
    if (qMax(cell.width(), cell.height()) > kMostThumbnail)
        cell = cell.scaled(kMostThumbnail, kMostThumbnail, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    return {std::make_shared<FittedImage>(Allocated(cell)), 0};
}

// What `make` makes of the bytes of the file `path` and the sheet in them, whose cells may be at most
// `mostCell` pixels long, unless that is 0; otherwise null, and why.
template <class Make>
auto FromFile(const QString& path, int mostCell, QString& why, Make make) -> decltype(make({}, {})) {
    why = WhyNotASheet(path);
    if (!why.isEmpty()) return {};
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        why = AboutFile(path, Tesselor::tr("\"%1\" cannot be opened."));
        return {};
    }
    try {
        const QByteArray bytes = file.read(qMin(file.size(), kMostSheetBytes));
        const QDeadlineTimer end(kMostDecoding);
        const QImage sheet = DecodeSheet(bytes, end, why, mostCell);
        if (!sheet.isNull()) return make(bytes, sheet);
        why = end.hasExpired() ? WhyTooSlow(path) : AboutFile(path, why);
    } catch (const std::bad_alloc&) {
        why = AboutFile(path, Tesselor::tr("\"%1\" needs more memory than is available."));
    }
    return {};
}

}  // namespace

std::shared_ptr<PictureSheet> PictureSheet::Load(const QString& path, QString& why) {
    return FromFile(path, 0, why, [](const QByteArray& bytes, const QImage& sheet) {
        std::shared_ptr<PictureSheet> loaded(new PictureSheet(bytes));
        const auto* windows = qobject_cast<const QGuiApplication*>(QCoreApplication::instance());
        loaded->Cut(sheet, windows ? windows->devicePixelRatio() : 1.0);
        loaded->thumbnail_ = FirstCell(sheet);
        return loaded;
    });
}

Picture PictureSheet::LoadThumbnail(const QString& path, QString& why) {
    return FromFile(path, kMostThumbnail, why,
                    [](const QByteArray&, const QImage& sheet) { return FirstCell(sheet); });
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
