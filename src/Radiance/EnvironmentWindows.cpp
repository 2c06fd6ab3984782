#include "Radiance/Environment.hpp"

#include <windows.h>

namespace Merivane::Radiance {

std::vector<std::wstring> EnvironmentEntries() {
    std::vector<std::wstring> entries;
    wchar_t* block = GetEnvironmentStringsW();
    if (block == nullptr) {
        return entries;
    }
    for (const wchar_t* entry = block; *entry != L'\0'; entry += entries.back().size() + 1) {
        entries.emplace_back(entry);
    }
    FreeEnvironmentStringsW(block);
    return entries;
}

std::optional<std::wstring> EnvironmentValue(const std::wstring& name) {
    std::wstring value;
    // Too small a buffer gives the size that is needed, with the NUL; another thread can have set
    // a longer value meanwhile, so the question is asked until the answer fits.
    DWORD length = GetEnvironmentVariableW(name.c_str(), nullptr, 0);
    while (length > value.size()) {
        value.resize(length);
        length = GetEnvironmentVariableW(name.c_str(), value.data(), length);
    }
    if (length == 0 && GetLastError() == ERROR_ENVVAR_NOT_FOUND) {
        return std::nullopt;
    }
    value.resize(length);
    return value;
}

} // namespace Merivane::Radiance
