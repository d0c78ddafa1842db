// Feeds damaged files to the string store: whatever a file holds, writing it back changes nothing that is
// read from it, a value comes back as it was stored, and no other value changes with it.

#include <QDir>
#include <QtEndian>

#include "platform/RegistryHive.h"
#include "tests/fuzz/Fuzz.h"

namespace {

struct Address {
    QString path, name;
};

using Values = QList<std::optional<QString>>;

bool Same(const Address& one, const Address& other) {
    return one.path.compare(other.path, Qt::CaseInsensitive) == 0 &&
           one.name.compare(other.name, Qt::CaseInsensitive) == 0;
}

// The input as UTF-16, half pairs and all.
QString Units(const QByteArray& bytes) {
    QString units(bytes.size() / 2, QChar());
    for (qsizetype i = 0; i < units.size(); ++i)
        units[i] = qFromLittleEndian<char16_t>(bytes.constData() + 2 * i);
    return units;
}

const QList<Address> kKnown{{QStringLiteral("Software\\Tesselor\\Name"), QStringLiteral("0")},
                            {QStringLiteral("Software\\Tesselor\\Score"), QStringLiteral("0")},
                            {QStringLiteral("Software\\Tesselor\\Score"), QStringLiteral("3")},
                            {QStringLiteral("a"), QStringLiteral("b")}};

template <class Store>
Values ValuesOf(const Store& store) {
    Values values;
    for (const Address& known : kKnown) values.append(store.String(known.path, known.name));
    return values;
}

RegistryText ReadAgain(const RegistryText& text) {
    const auto again = RegistryText::FromBytes(text.ToBytes());
    Require(again.has_value());
    return *again;
}

void StoreIn(RegistryText text, const Address& at, const QString& value) {
    const Values before = ValuesOf(text);
    text.SetString(at.path, at.name, value);
    const RegistryText again = ReadAgain(text);
    Require(again.String(at.path, at.name) == value);
    const Values after = ValuesOf(again);
    for (qsizetype i = 0; i < kKnown.size(); ++i) Require(Same(kKnown[i], at) || before[i] == after[i]);
}

// A whole file, which is read as its text is; what cannot be read is set aside before a value is stored.
void TryFile(const QByteArray& bytes, const std::optional<RegistryText>& text) {
    const QString path = Folder().filePath(QStringLiteral("store"));
    WriteFile(path, bytes);
    RegistryHive hive(path);
    Require(ValuesOf(hive) == ValuesOf(text.value_or(RegistryText())));
    hive.SetString(kKnown[0].path, kKnown[0].name, QStringLiteral("x"));
    Require(RegistryHive(path).String(kKnown[0].path, kKnown[0].name) == QStringLiteral("x"));
    Require(QFile::remove(path + QStringLiteral(".unreadable-1")) == !text);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    const QByteArray bytes = Bytes(data, size);
    const auto text = RegistryText::FromBytes(bytes);
    TryFile(bytes, text);
    if (!text) return 0;
    Require(ReadAgain(*text).ToBytes() == text->ToBytes());
    Require(ValuesOf(ReadAgain(*text)) == ValuesOf(*text));
    const QString units = Units(bytes);
    const qsizetype third = units.size() / 3;
    StoreIn(*text, {units.first(third), units.sliced(third, third)}, units.sliced(2 * third));
    StoreIn(*text, kKnown[3], units);
    StoreIn(*text, kKnown[1], QString::fromUtf8(bytes));
    return 0;
}
