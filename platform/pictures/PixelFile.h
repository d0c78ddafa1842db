#pragma once

#include <QImage>

// The window's art as stored in the resources: raw pixels, because decoding pictures took half as long as the
// rest of start-up. tools/art/pack_pixels writes them during the build.

// The pixels of `image`, premultiplied, behind their size and whether they can be seen through.
[[nodiscard]] QByteArray PackPixels(const QImage& image);

// The picture `name` ("window/panel@100") of the program's resources; null when there is none. Its pixels are
// copied only if they are compressed or once they are changed.
[[nodiscard]] QImage PackedPixels(const QString& name);
