#include "Catalog/UserCacheFolder.hpp"

#include <windows.h>

namespace Merivane::Catalog {

std::wstring UserCacheFolder() {
    constexpr std::size_t LongestValue = 32768; // of the system, its NUL included
    std::wstring folder(LongestValue, L'\0');
    const DWORD length =
        GetEnvironmentVariableW(L"LOCALAPPDATA", folder.data(), static_cast<DWORD>(folder.size()));
    folder.resize(length < LongestValue ? length : 0);
    return folder;
}

} // namespace Merivane::Catalog
