#pragma once

#include <QImage>

// The window's own art as it lies in the resources: pixels that are shown as they are, for decoding pictures
// took as long as half of the rest of the start. tools/art/pack_pixels writes them while building.

// The pixels of `image`, premultiplied, behind their size and whether they can be seen through.
[[nodiscard]] QByteArray PackPixels(const QImage& image);

// The picture `name` ("window/panel@100") of the program's resources; null when there is none.
[[nodiscard]] QImage PackedPixels(const QString& name);
