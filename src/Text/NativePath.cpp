#include "Text/NativePath.hpp"

#include "Text/Utf8.hpp"

namespace Merivane::Text {

std::filesystem::path NativePath(const std::wstring& path) {
    if constexpr (PathsAreWide) {
        return path;
    } else {
        return Narrow(path);
    }
}

std::wstring WidePath(const std::filesystem::path& path) {
    if constexpr (PathsAreWide) {
        return path.wstring();
    } else {
        return Widen(path.string());
    }
}

} // namespace Merivane::Text
