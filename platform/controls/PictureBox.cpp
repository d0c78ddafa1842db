#include "platform/controls/PictureBox.h"

#include <QDropEvent>
#include <QMimeData>
#include <QPainter>
#include <QUrl>

#include "platform/pictures/DevicePixels.h"

namespace {

QRect Scaled(const QRectF& rect, qreal scale) {
    const auto at = [scale](qreal value) { return qRound(value * scale); };
    return {QPoint(at(rect.left()), at(rect.top())), QPoint(at(rect.right()) - 1, at(rect.bottom()) - 1)};
}

void Fill(QPainter& painter, const QRect& rect, const QColor& colour) {
    if (rect.isValid()) painter.fillRect(rect, colour);
}

// Draws four bars without overlap, so that mask mode combines each pixel once.
void Outline(QPainter& painter, const QRect& outer, int width, const QColor& colour) {
    const QRect inner = outer.adjusted(width, width, -width, -width);
    Fill(painter, {outer.topLeft(), QPoint(outer.right(), inner.top() - 1)}, colour);
    Fill(painter, {QPoint(outer.left(), inner.bottom() + 1), outer.bottomRight()}, colour);
    Fill(painter, {QPoint(outer.left(), inner.top()), QPoint(inner.left() - 1, inner.bottom())}, colour);
    Fill(painter, {QPoint(inner.right() + 1, inner.top()), QPoint(outer.right(), inner.bottom())}, colour);
}

// The edges run through pixel centres, so a line of odd width is centred on them.
QRectF OuterEdge(const DrawnBox& box) {
    const int before = box.lineWidth / 2, after = box.lineWidth - before;
    return {
        QPointF(box.edges.topLeft()) - QPointF(before, before),
        QPointF(box.edges.left() + box.edges.width() + after, box.edges.top() + box.edges.height() + after)};
}

void Draw(QPainter& painter, const DrawnBox& box, qreal scale) {
    painter.setCompositionMode(box.mode == DrawMode::MaskPen ? QPainter::RasterOp_SourceAndDestination
                                                             : QPainter::CompositionMode_Source);
    if (box.lineWidth == 0) return Fill(painter, Scaled(box.edges, scale), ToQColor(box.colour));
    Outline(painter, Scaled(OuterEdge(box), scale), qRound(box.lineWidth * scale), ToQColor(box.colour));
}

void Draw(QPainter& painter, const PaintedPicture& painted, qreal scale) {
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    DrawPixels(painter, QPointF(painted.at * scale).toPoint(), painted.picture.At(scale));
}

// The first of the dragged files, if it is local.
QString FirstFile(const QMimeData* data) {
    const QList<QUrl> urls = data->urls();
    return !urls.isEmpty() && urls.first().isLocalFile() ? urls.first().toLocalFile() : QString();
}

class ContentsSource final : public PictureSource {
public:
    explicit ContentsSource(PictureContents contents) : contents_(std::move(contents)) {}
    QImage Render(int /*cell*/, qreal scale) const override { return contents_.Render(scale); }

private:
    PictureContents contents_;
};

}  // namespace

void PictureContents::Paint(QPainter& painter, qreal scale) const {
    const QRect area({0, 0}, (QSizeF(size) * scale).toSize());
    painter.setClipRect(area);
    painter.fillRect(area, ToQColor(background));
    Draw(painter, PaintedPicture{picture, {0, 0}}, scale);
    for (const auto& drawing : drawings)
        std::visit([&](const auto& drawn) { Draw(painter, drawn, scale); }, drawing);
}

QImage PictureContents::Render(qreal scale) const {
    QImage image((QSizeF(size) * scale).toSize(), QImage::Format_RGB32);
    QPainter painter(&image);
    Paint(painter, scale);
    painter.end();
    image.setDevicePixelRatio(scale);
    return image;
}

PictureBox::PictureBox(QWidget* parent, const Placement& placement, int border)
    : MouseControl(parent, placement), border_(border) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    contents_.size = Inside().size();
}

void PictureBox::Picture(const ::Picture& picture) {
    if (picture == contents_.picture && contents_.drawings.empty()) return;
    contents_.picture = picture;
    contents_.drawings.clear();
    update();
}

void PictureBox::BackColor(Colour colour) {
    contents_.background = colour;
    update();
}

void PictureBox::DrawBox(QPoint from, QPoint to, Colour colour) {
    Add({QRect(from, QSize(to.x() - from.x(), to.y() - from.y())), drawWidth_, colour, drawMode_});
}

void PictureBox::DrawFilledBox(QPoint from, QPoint to, Colour colour) {
    Add({QRect(from, QSize(to.x() - from.x(), to.y() - from.y())), 0, colour, drawMode_});
}

void PictureBox::PaintPicture(const ::Picture& picture, QPoint at) {
    contents_.drawings.emplace_back(PaintedPicture{picture, at});
    update();
}

void PictureBox::Clear() {
    if (contents_.drawings.empty()) return;
    contents_.drawings.clear();
    update();
}

void PictureBox::OnFileDrop(std::function<void(const QString& path)> handler) {
    onFileDrop_ = std::move(handler);
    setAcceptDrops(true);
}

void PictureBox::dragEnterEvent(QDragEnterEvent* event) {
    if (!FirstFile(event->mimeData()).isEmpty()) event->acceptProposedAction();
}

void PictureBox::dropEvent(QDropEvent* event) {
    const QString path = FirstFile(event->mimeData());
    if (path.isEmpty()) return;
    // The game deletes the file itself, once it has stored it safely, so the drag source must see a copy.
    event->setDropAction(Qt::CopyAction);
    event->accept();
    // Not from within the drop: its source waits for that to end, and the window may be closed meanwhile.
    const auto read = [this, path] { onFileDrop_(path); };
    QMetaObject::invokeMethod(this, read, Qt::QueuedConnection);
}

::Picture PictureBox::Image() const {
    return {std::make_shared<ContentsSource>(contents_), 0};
}

// A box that covers an earlier one of the same shape replaces it, so that frames redrawn for hours do not
// accumulate.
void PictureBox::Add(const DrawnBox& box) {
    std::erase_if(contents_.drawings, [&box](const auto& drawing) {
        const auto* earlier = std::get_if<DrawnBox>(&drawing);
        return earlier && earlier->edges == box.edges && earlier->lineWidth == box.lineWidth &&
               (box.mode == DrawMode::CopyPen || *earlier == box);
    });
    contents_.drawings.emplace_back(box);
    update();
}

void PictureBox::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const QRect whole = DevicePixelsOf(painter, size());
    const qreal scale = UseDevicePixels(painter);
    painter.fillRect(whole, ToQColor(border_ > 0 ? Colour{0xA39A8E} : contents_.background));
    if (border_ > 0) Outline(painter, whole, 1, ToQColor(0x3A2A1C));
    const int sunk = IsPressed() ? qRound(scale) : 0;
    if (sunk > 0) painter.fillRect(whole, ToQColor(0x7A8894));  // the shadow of the edge above
    painter.translate(QPointF(border_ * scale, border_ * scale + sunk).toPoint());
    contents_.Paint(painter, scale);
}
