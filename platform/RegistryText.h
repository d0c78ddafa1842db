#pragma once

#include <QByteArray>
#include <QStringList>
#include <optional>

// The text of a registry file: a section for each key path, a line for each value.
//
//     [Software\Tesselor\Score]
//     "0"="12,345"
//     "n"=dword:0000002a
//
// Paths and names are compared without regard to case. What cannot stand in a line as it is (a quote, a
// percent sign, a control character, half of a surrogate pair) is written as '%' and the four hexadecimal
// digits of its UTF-16 unit. A line that is neither section nor value, a note or a damaged one, says nothing
// and stays where it is.
class RegistryText {
public:
    // The text in `bytes`; nothing when they are not UTF-8.
    [[nodiscard]] static std::optional<RegistryText> FromBytes(const QByteArray& bytes);
    [[nodiscard]] QByteArray ToBytes() const;

    // The string under `name` in the key `path`; nothing when there is none or it is of another type.
    [[nodiscard]] std::optional<QString> String(const QString& path, const QString& name) const;
    // Stores `text`, in place of a value of any type, making the key when it is missing.
    void SetString(const QString& path, const QString& name, const QString& text);

private:
    // Line numbers, -1 for none: the last line of the section that says something, and the value's.
    struct Lines {
        qsizetype sectionEnd = -1, value = -1;
    };
    [[nodiscard]] Lines Find(const QString& path, const QString& name) const;

    QStringList lines_;
};
