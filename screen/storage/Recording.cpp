#include "screen/storage/Recording.h"

#include <QFile>
#include <limits>

namespace {

void Append(std::vector<std::uint8_t>& entries, std::int16_t value) {
    if (entries.size() < static_cast<std::size_t>(std::numeric_limits<std::int16_t>::max()))
        entries.push_back(static_cast<std::uint8_t>(value));
}

void AppendLines(QByteArray& text, const char* name, const std::vector<std::uint8_t>& entries) {
    for (std::size_t i = 0; i < entries.size(); ++i)
        text += QByteArray(name) + '(' + QByteArray::number(qulonglong(i)) +
                ") = " + QByteArray::number(entries[i]) + "\r\n";
}

}  // namespace

void Recording::Move(std::int16_t cell) {
    Append(ArrDemo_, cell);
}

void Recording::NewGame(std::int16_t firstCard) {
    Append(ArrDemoCard_, firstCard);
    Append(ArrDemo_, 0);
}

QByteArray Recording::AsText() const {
    QByteArray text;
    AppendLines(text, "ArrDemo", ArrDemo_);
    AppendLines(text, "ArrDemoCard", ArrDemoCard_);
    return text;
}

bool AppendToFile(const QString& path, const QByteArray& text) {
    QFile file(path);
    const bool isNew = !file.exists();
    if (!file.open(QIODevice::Append | QIODevice::Unbuffered)) return false;
    const qint64 before = file.size();
    if (file.write(text) == text.size()) return true;
    if (isNew)
        file.remove();
    else
        file.resize(before);
    return false;
}
