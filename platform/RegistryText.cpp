#include "platform/RegistryText.h"

#include <QStringDecoder>
#include <algorithm>

namespace {

constexpr qsizetype kDigits = 4;  // after the '%' of an escaped unit

bool IsHalfAPair(QStringView text, qsizetype at) {
    if (text[at].isHighSurrogate()) return at + 1 == text.size() || !text[at + 1].isLowSurrogate();
    return text[at].isLowSurrogate() && (at == 0 || !text[at - 1].isHighSurrogate());
}

bool MustBeEscaped(QStringView text, qsizetype at) {
    const QChar unit = text[at];
    const QChar::Category category = unit.category();
    return unit == u'%' || unit == u'"' || category == QChar::Other_Control ||
           category == QChar::Separator_Line || category == QChar::Separator_Paragraph ||
           IsHalfAPair(text, at);
}

QString Escaped(QStringView text) {
    QString escaped;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (MustBeEscaped(text, i))
            escaped += QStringLiteral("%%1").arg(text[i].unicode(), int(kDigits), 16, QLatin1Char('0'));
        else
            escaped += text[i];
    }
    return escaped;
}

// Nothing when `text` holds a bare quote or a '%' without its digits.
std::optional<QString> Unescaped(QStringView text) {
    QString plain;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == u'"') return {};
        if (text[i] != u'%') {
            plain += text[i];
            continue;
        }
        const QStringView digits = text.mid(i + 1, kDigits);
        bool ok = digits.size() == kDigits;
        const ushort unit = ok ? digits.toUShort(&ok, 16) : ushort{0};
        if (!ok) return {};
        plain += QChar(unit);
        i += kDigits;
    }
    return plain;
}

std::optional<QString> Between(QChar opening, QStringView text, QChar closing) {
    if (text.size() < 2 || text.front() != opening || text.back() != closing) return {};
    return Unescaped(text.sliced(1, text.size() - 2));
}

bool IsNumber(QStringView value) {
    const QStringView prefix = u"dword:";
    bool ok = false;
    if (value.startsWith(prefix, Qt::CaseInsensitive))
        static_cast<void>(value.sliced(prefix.size()).toUInt(&ok, 16));
    return ok;
}

struct Value {
    QString name;
    std::optional<QString> text;  // nothing for a value of another type
};

// The value in a line; nothing when the line holds none or is damaged.
std::optional<Value> ParseValue(QStringView line) {
    const qsizetype equals = line.indexOf(u'=', line.indexOf(u'"', 1));  // the name may hold one too
    if (equals < 0) return {};
    const std::optional<QString> name = Between(u'"', line.first(equals).trimmed(), u'"');
    const QStringView value = line.sliced(equals + 1).trimmed();
    if (!name) return {};
    if (IsNumber(value)) return Value{*name, {}};
    const std::optional<QString> text = Between(u'"', value, u'"');
    if (!text) return {};
    return Value{*name, text};
}

// Byte order marks after the first, which the decoder takes. Left there they would hide the first line, until
// the next reading had taken one more.
qsizetype MarksAtStart(QStringView text) {
    const auto isMark = [](QChar unit) { return unit == QChar::ByteOrderMark; };
    return std::find_if_not(text.begin(), text.end(), isMark) - text.begin();
}

bool Same(const QString& one, const QString& other) {
    return one.compare(other, Qt::CaseInsensitive) == 0;
}

}  // namespace

std::optional<RegistryText> RegistryText::FromBytes(const QByteArray& bytes) {
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString text = decoder(bytes);
    if (decoder.hasError()) return {};
    text.remove(0, MarksAtStart(text));
    RegistryText registry;
    if (text.endsWith(u'\n')) text.chop(1);
    if (!text.isEmpty()) registry.lines_ = text.split(u'\n');
    return registry;
}

QByteArray RegistryText::ToBytes() const {
    return lines_.join(u'\n').toUtf8() + '\n';
}

// A value that stands there twice counts where it stands last, for reading and for writing.
RegistryText::Lines RegistryText::Find(const QString& path, const QString& name) const {
    Lines found;
    bool inside = false;
    for (qsizetype i = 0; i < lines_.size(); ++i) {
        const QStringView line = QStringView(lines_[i]).trimmed();
        if (line.startsWith(u'[')) {
            const std::optional<QString> section = Between(u'[', line, u']');
            inside = section && Same(*section, path);
        }
        if (!inside || line.isEmpty()) continue;
        found.sectionEnd = i;
        if (const auto value = ParseValue(line); value && Same(value->name, name)) found.value = i;
    }
    return found;
}

std::optional<QString> RegistryText::String(const QString& path, const QString& name) const {
    const qsizetype at = Find(path, name).value;
    if (at < 0) return {};
    return ParseValue(QStringView(lines_[at]).trimmed())->text;
}

void RegistryText::SetString(const QString& path, const QString& name, const QString& text) {
    const QString line = '"' + Escaped(name) + "\"=\"" + Escaped(text) + '"';
    const Lines found = Find(path, name);
    if (found.value >= 0) {
        lines_[found.value] = line;
    } else if (found.sectionEnd >= 0) {
        lines_.insert(found.sectionEnd + 1, line);
    } else {
        if (!lines_.isEmpty()) lines_.append(QString());
        lines_.append({u'[' + Escaped(path) + u']', line});
    }
}
