#pragma once

#include <QString>
#include <optional>

// A store of string values addressed by key path and value name, both compared without regard to case.
class RegistryHive {
public:
    virtual ~RegistryHive() = default;
    // The string under `name` in the key `path`; nothing when there is none or it is of another type.
    [[nodiscard]] virtual std::optional<QString> String(const QString& path, const QString& name) const = 0;
    // Stores `text`, making the key when it is missing.
    virtual void SetString(const QString& path, const QString& name, const QString& text) = 0;
};
