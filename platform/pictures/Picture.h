#pragma once

#include <QImage>
#include <memory>

// Something that can be drawn sharply at any scale: a cell of a skin, a drawing of the window's art.
class PictureSource {
public:
    virtual ~PictureSource() = default;

    // The picture numbered `cell`, drawn for `scale` device pixels to a logical pixel, which is also the
    // device pixel ratio of the image. A null image when there is no such cell. Throws std::bad_alloc.
    [[nodiscard]] virtual QImage Render(int cell, qreal scale) const = 0;
};

// A picture as a control holds it: cheap to copy, compared by what it shows, empty until it is given
// something.
class Picture {
public:
    Picture() = default;
    Picture(std::shared_ptr<const PictureSource> source, int cell)
        : source_(std::move(source)), cell_(cell) {}

    [[nodiscard]] bool IsEmpty() const { return source_ == nullptr; }
    // Which cell of its source it is; meaningless when empty.
    [[nodiscard]] int Cell() const { return cell_; }
    // The image for `scale`; null when empty or out of memory, in which case painters skip it.
    [[nodiscard]] QImage At(qreal scale) const;

    friend bool operator==(const Picture&, const Picture&) = default;

private:
    std::shared_ptr<const PictureSource> source_;
    int cell_ = 0;
};

// The drawing `name` of the window's art, from the program's resources, in the best size for each scale.
[[nodiscard]] Picture WindowArt(const QString& name);
// The same for a large drawing of the first screen. At scales above 1, where the art is compressed, a thread
// unpacks it for the largest scale of the desktop while the window is being made.
[[nodiscard]] Picture FirstArt(const QString& name);
