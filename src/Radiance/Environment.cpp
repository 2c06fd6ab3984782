#include "Radiance/Environment.hpp"

#include <algorithm>
#include <string_view>

namespace Merivane::Radiance {

namespace {

constexpr std::wstring_view RayPathName = L"RAYPATH=";

wchar_t UpperCase(wchar_t c) {
    return c >= L'a' && c <= L'z' ? static_cast<wchar_t>(c - L'a' + L'A') : c;
}

bool SetsRayPath(const std::wstring& entry) {
    return entry.size() >= RayPathName.size() &&
           std::equal(RayPathName.begin(), RayPathName.end(), entry.begin(),
                      [](wchar_t name, wchar_t c) { return name == UpperCase(c); });
}

bool ComesBefore(const std::wstring& a, const std::wstring& b) {
    return std::lexicographical_compare(
        a.begin(), a.end(), b.begin(), b.end(),
        [](wchar_t x, wchar_t y) { return UpperCase(x) < UpperCase(y); });
}

} // namespace

std::vector<std::wstring> EnvironmentEntriesWith(const std::wstring& rayPath) {
    std::vector<std::wstring> entries = EnvironmentEntries();
    std::erase_if(entries, SetsRayPath);
    entries.push_back(std::wstring(RayPathName) + rayPath);
    std::stable_sort(entries.begin(), entries.end(), ComesBefore);
    return entries;
}

std::wstring EnvironmentBlockWith(const std::wstring& rayPath) {
    std::wstring block;
    for (const std::wstring& entry : EnvironmentEntriesWith(rayPath)) {
        block += entry;
        block += L'\0';
    }
    block += L'\0';
    return block;
}

} // namespace Merivane::Radiance
