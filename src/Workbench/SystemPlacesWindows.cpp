#include "Workbench/SystemPlaces.hpp"

#include <array>

#include <windows.h>

namespace Merivane::Workbench {

namespace {

constexpr std::size_t LongestPath = 32768; // of the system, its NUL included

std::wstring Variable(const wchar_t* name) {
    std::wstring value(LongestPath, L'\0');
    value.resize(GetEnvironmentVariableW(name, value.data(), static_cast<DWORD>(value.size())));
    return value.size() < LongestPath ? value : std::wstring();
}

} // namespace

std::wstring ExecutablePath() {
    std::wstring path(LongestPath, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
    return path.size() < LongestPath ? path : std::wstring();
}

std::wstring SystemTemporaryFolder() {
    std::array<wchar_t, MAX_PATH + 2> folder = {};
    const DWORD length = GetTempPathW(static_cast<DWORD>(folder.size()), folder.data());
    std::wstring path(folder.data(), length < folder.size() ? length : 0);
    while (!path.empty() && path.back() == L'\\') {
        path.pop_back();
    }
    return path;
}

std::wstring UserDocumentsFolder() {
    const std::wstring folder = Variable(L"USERPROFILE");
    return folder.empty() ? folder : folder + L"\\Documents";
}

std::wstring UserPreferencesFile() {
    const std::wstring folder = Variable(L"APPDATA");
    return folder.empty() ? folder : folder + L"\\vantoro\\preferencias";
}

} // namespace Merivane::Workbench
