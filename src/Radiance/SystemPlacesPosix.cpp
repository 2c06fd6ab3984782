#include "Radiance/SystemPlaces.hpp"

namespace Merivane::Radiance {

const std::wstring& ToolSuffix() {
    static const std::wstring Suffix;
    return Suffix;
}

wchar_t PathListSeparator() {
    return L':';
}

std::vector<std::wstring> UsualBinFolders() {
    return {L"/usr/local/radiance/bin"};
}

} // namespace Merivane::Radiance
