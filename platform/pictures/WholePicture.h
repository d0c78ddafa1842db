#pragma once

#include <QByteArray>

// Whether the file `bytes` of the picture format `format`, by QImageReader's name, lacks the end that its
// format prescribes: Qt accepts some truncated pictures. False for a format without a known end.
[[nodiscard]] bool IsCutShort(const QByteArray& format, const QByteArray& bytes);
