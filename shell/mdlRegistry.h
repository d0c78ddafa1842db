#pragma once

#include <QString>
#include <cstdint>

class StringStore;

// The string store: text values of the current user, addressed by root, key path and value name.
namespace mdlRegistry {

inline constexpr std::uint32_t kCurrentUser = 0x80000001;  // HKEY_CURRENT_USER

// Sets the store that the functions below use; null, the default, for none. It must outlive its use here.
void Hive(StringStore* hive);

// The text stored under `name` in the key `path` ("Software\Tesselor\Name"), up to its first zero character;
// `defaultText` if the key or the value is missing, or the value is not a string.
[[nodiscard]] QString ReadRegString(std::uint32_t root, const QString& path, const QString& name,
                                    const QString& defaultText = {});

// Stores `text` under `name` in the key `path`, creating the key if missing. Failures are ignored.
void WriteRegString(std::uint32_t root, const QString& path, const QString& name, const QString& text);

// A scoped transaction: other processes cannot change the store while it lives, and all writes are committed
// together when it ends. Steps do not nest.
class Step {
public:
    Step();
    ~Step();
    Step(const Step&) = delete;
    Step& operator=(const Step&) = delete;
};

}  // namespace mdlRegistry
