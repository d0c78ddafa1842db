#include "platform/pictures/Picture.h"

#include <QGuiApplication>
#include <array>
#include <cmath>
#include <future>
#include <new>

#include "platform/pictures/PixelFile.h"

namespace {

// The art is drawn once for each of the usual scales, in percent; other scales shrink the next larger one.
constexpr std::array kScales = {100, 125, 150, 175, 200, 300};

class ArtSource final : public PictureSource {
public:
    explicit ArtSource(QString name) : name_(std::move(name)) {}

    void UnpackFor(qreal scale) {
        unpacked_ = std::async([this, scale] { return Draw(scale); });
    }

    QImage Render(int /*cell*/, qreal scale) const override {
        if (unpacked_.valid()) image_ = unpacked_.get();
        if (image_.isNull() || image_.devicePixelRatio() != scale) image_ = Draw(scale);
        return image_;
    }

private:
    [[nodiscard]] QImage Draw(qreal scale) const {
        const auto fits = [scale](int percent) { return percent >= scale * 100 - 0.5; };
        const auto* found = std::find_if(kScales.begin(), kScales.end(), fits);
        const int percent = found == kScales.end() ? kScales.back() : *found;
        QImage image = PackedPixels(QStringLiteral("window/%1@%2").arg(name_).arg(percent));
        if (image.isNull()) return image;
        if (std::abs(percent - scale * 100) > 0.5) {
            const QSizeF size = image.size() * (scale * 100 / percent);
            image = image.scaled(size.toSize(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        }
        image.setDevicePixelRatio(scale);
        return image;
    }

    QString name_;
    mutable QImage image_;  // the one for the scale last asked for
    mutable std::future<QImage> unpacked_;
};

}  // namespace

QImage Picture::At(qreal scale) const {
    try {
        return source_ ? source_->Render(cell_, scale) : QImage();
    } catch (const std::bad_alloc&) {
        return {};
    }
}

Picture WindowArt(const QString& name) {
    return {std::make_shared<ArtSource>(name), 0};
}

Picture FirstArt(const QString& name) {
    const auto art = std::make_shared<ArtSource>(name);
    if (const qreal scale = qGuiApp->devicePixelRatio(); scale > 1) art->UnpackFor(scale);
    return {art, 0};
}
