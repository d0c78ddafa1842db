#include "shell/mdlRegistry.h"

#include "platform/files/StringStore.h"

namespace mdlRegistry {
namespace {

StringStore* theHive = nullptr;

// Only the current user's root is supported; any other is silently ignored.
bool IsKept(std::uint32_t root) {
    return theHive && root == kCurrentUser;
}

}  // namespace

void Hive(StringStore* hive) {
    theHive = hive;
}

QString ReadRegString(std::uint32_t root, const QString& path, const QString& name,
                      const QString& defaultText) {
    if (!IsKept(root)) return defaultText;
    const std::optional<QString> text = theHive->String(path, name);
    return text ? text->left(text->indexOf(QChar(u'\0'))) : defaultText;
}

void WriteRegString(std::uint32_t root, const QString& path, const QString& name, const QString& text) {
    if (IsKept(root)) theHive->SetString(path, name, text);
}

Step::Step() {
    if (theHive) theHive->Begin();
}

Step::~Step() {
    if (theHive) theHive->End();
}

}  // namespace mdlRegistry
