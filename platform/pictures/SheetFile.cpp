#include "platform/pictures/SheetFile.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImageReader>
#include <algorithm>

#include "platform/language/Tesselor.h"
#include "platform/pictures/WholePicture.h"

namespace {

// How much of a file is read to tell whether it may be a sheet: the worst head of this length takes some
// milliseconds.
constexpr qint64 kStartBytes = qint64{4} * 1024;

QString WhyNotThisSize(const QSize& size) {
    if (!size.isValid()) return Tesselor::tr("\"%1\" is not a picture the game can read.");
    const bool isSmall = size.width() < kSheetColumns || size.height() < kSheetRows;
    if (!isSmall && qint64{size.width()} * size.height() <= kMostSheetPixels) return {};
    return (isSmall
                ? Tesselor::tr(
                      "\"%1\" is %2 x %3 pixels; a skin has 3 x 13 cells, so it has at least 3 x 13 pixels.")
                : Tesselor::tr("\"%1\" is %2 x %3 pixels; a skin has at most 16 million pixels."))
        .arg(QStringLiteral("%1"), QString::number(size.width()), QString::number(size.height()));
}

// Whether the loader reads `format` as pixels. A drawing may name other files, and nothing bounds the time
// and the memory to draw it.
bool IsOfPixels(const QByteArray& format) {
    return !format.isEmpty() && !format.startsWith("svg");
}

// Sets the format of a PNG, which most skins are. To detect it, the reader would first load every plugin, and
// a desktop may have dozens.
void TellFormat(QImageReader& reader, const QByteArray& bytes) {
    if (!bytes.startsWith("\x89PNG\r\n\x1a\n")) return;
    reader.setFormat("png");
    reader.setAutoDetectImageFormat(false);
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

}  // namespace

QString AboutFile(const QString& path, const QString& what) {
    return what.arg(QFileInfo(path).fileName());
}

QString WhyNotASheet(const QString& path) {
    const QFileInfo file(path);
    if (!file.isFile()) return AboutFile(path, Tesselor::tr("\"%1\" was not found."));
    if (file.size() > kMostSheetBytes)
        return AboutFile(path, Tesselor::tr("\"%1\" is larger than 64 megabytes, the most a skin may have."));
    QFile opened(path);
    if (!opened.open(QIODevice::ReadOnly)) return AboutFile(path, Tesselor::tr("\"%1\" cannot be opened."));
    QByteArray start = opened.read(kStartBytes);
    QBuffer buffer(&start);
    QImageReader reader(&buffer);
    TellFormat(reader, start);
    const Head head(reader);
    const bool comesLater = !head.size.isValid() && IsOfPixels(head.format) && file.size() > kStartBytes;
    const QString why = comesLater ? QString() : WhyNotThisSize(head.size);
    return why.isEmpty() ? why : AboutFile(path, why);
}

QString WhyTooSlow(const QString& path) {
    return AboutFile(path, Tesselor::tr("\"%1\" takes too long to read."));
}

QImage Allocated(QImage image) {
    if (image.isNull()) throw std::bad_alloc();
    return image;
}

QImage DecodeSheet(const QByteArray& bytes, QDeadlineTimer end, QString& why, int mostCell) {
    ExpiringBytes device(bytes, end);
    QImageReader reader(&device);
    TellFormat(reader, bytes);
    const Head head(reader);
    why = WhyNotThisSize(head.size);
    if (!why.isEmpty()) return {};
    why = Tesselor::tr("\"%1\" is damaged or incomplete.");
    if (IsCutShort(head.format, bytes)) return {};
    // Allocate first: QImageReader does not distinguish out of memory from a damaged picture.
    (void)Allocated(QImage(head.size, QImage::Format_ARGB32));
    if (const QSize cell(head.size.width() / kSheetColumns, head.size.height() / kSheetRows);
        mostCell > 0 && qMax(cell.width(), cell.height()) > mostCell) {
        const QSize smaller = cell.scaled(mostCell, mostCell, Qt::KeepAspectRatio).expandedTo({1, 1});
        reader.setScaledSize({smaller.width() * kSheetColumns, smaller.height() * kSheetRows});
    }
    QImage image = reader.read();
    // A device that runs dry passes for the end of a JPEG, and the picture in an icon may have another size.
    if (end.hasExpired() || !WhyNotThisSize(image.size()).isEmpty()) return {};
    why.clear();
    return image;
}
