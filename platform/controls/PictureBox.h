#pragma once

#include <QWidget>
#include <variant>
#include <vector>

#include "platform/controls/MouseControl.h"
#include "platform/pictures/Picture.h"

enum class DrawMode {
    CopyPen,  // a drawn pixel takes the pen's colour
    MaskPen,  // a drawn pixel becomes the bitwise AND of its colour and the pen's
};

// A box drawn on a picture, in pixels of the drawing area. An outline is centred on the rectangle's edges and
// `lineWidth` wide; a filled box (lineWidth 0) fills the inside of the edges.
struct DrawnBox {
    QRect edges;
    int lineWidth = 0;
    Colour colour = kBlack;
    DrawMode mode = DrawMode::CopyPen;

    friend bool operator==(const DrawnBox&, const DrawnBox&) = default;
};

// Another picture, with its top left corner at `at`.
struct PaintedPicture {
    Picture picture;
    QPoint at;
};

// The contents of a picture box: its background, picture and drawings, at any scale.
struct PictureContents {
    QSize size;  // of the drawing area, in logical pixels
    Colour background = kWhite;
    Picture picture;
    std::vector<std::variant<DrawnBox, PaintedPicture>> drawings;

    // Paints them on a painter that works in device pixels, with their corner at its origin.
    void Paint(QPainter& painter, qreal scale) const;
    [[nodiscard]] QImage Render(qreal scale) const;
};

// The picture-box control. Drawings stay until its picture is replaced or it is cleared.
class PictureBox : public MouseControl {
public:
    // `border`: width of the sunken edge around the drawing area, in logical pixels.
    PictureBox(QWidget* parent, const Placement& placement, int border = 0);

    // Setting a picture also removes all drawings.
    [[nodiscard]] const ::Picture& Picture() const { return contents_.picture; }
    void Picture(const ::Picture& picture);
    void BackColor(Colour colour);
    void DrawMode(::DrawMode mode) { drawMode_ = mode; }
    void DrawWidth(int pixels) { drawWidth_ = pixels; }

    void DrawBox(QPoint from, QPoint to, Colour colour);  // an outline, DrawWidth wide
    void DrawFilledBox(QPoint from, QPoint to, Colour colour);
    void PaintPicture(const ::Picture& picture, QPoint at);
    void Clear();  // removes the drawings; the picture stays

    // Takes files dropped on it: `handler` gets the path of the first one once the drop has ended.
    // Anything but a local file is refused during the drag.
    void OnFileDrop(std::function<void(const QString& path)> handler);

    // The current contents, drawings included, as a picture.
    [[nodiscard]] ::Picture Image() const;
    [[nodiscard]] const PictureContents& Contents() const { return contents_; }

    // Repaints before returning.
    void Refresh() { repaint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void Add(const DrawnBox& box);
    [[nodiscard]] QRect Inside() const { return rect().adjusted(border_, border_, -border_, -border_); }

    std::function<void(const QString& path)> onFileDrop_;
    PictureContents contents_;
    ::DrawMode drawMode_ = DrawMode::CopyPen;
    int drawWidth_ = 1;
    int border_;
};
