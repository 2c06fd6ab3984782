#include "Radiance/SystemPlaces.hpp"

#include "Radiance/Environment.hpp"
#include "Text/NativePath.hpp"

namespace Merivane::Radiance {

const std::wstring& ToolSuffix() {
    static const std::wstring Suffix = L".exe";
    return Suffix;
}

wchar_t PathListSeparator() {
    return L';';
}

std::vector<std::wstring> UsualBinFolders() {
    std::vector<std::wstring> folders = {L"C:\\Radiance\\bin"};
    for (const wchar_t* variable : {L"ProgramFiles", L"ProgramFiles(x86)"}) {
        if (const auto programs = EnvironmentValue(variable)) {
            folders.push_back(Text::WidePath(Text::NativePath(*programs) / "Radiance" / "bin"));
        }
    }
    return folders;
}

} // namespace Merivane::Radiance
