#include <cstdlib>
#include <string_view>

#include "Catalog/UserCacheFolder.hpp"
#include "Text/Utf8.hpp"

namespace Merivane::Catalog {

namespace {

/// A folder that a variable names. A relative one has no meaning, and is passed over.
std::string FolderFrom(const char* variable) {
    const char* const value = std::getenv(variable);
    return value != nullptr && std::string_view(value).starts_with('/') ? value : "";
}

} // namespace

std::wstring UserCacheFolder() {
    if (const std::string folder = FolderFrom("XDG_CACHE_HOME"); !folder.empty()) {
        return Text::Widen(folder);
    }
    const std::string home = FolderFrom("HOME");
    return home.empty() ? std::wstring() : Text::Widen(home + "/.cache");
}

} // namespace Merivane::Catalog
