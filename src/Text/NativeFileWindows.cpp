#include "Text/NativeFile.hpp"

#include <string_view>

#include <io.h>
#include <windows.h>

namespace Merivane::Text {

namespace {

HANDLE HandleOf(std::FILE* file) {
    return reinterpret_cast<HANDLE>(_get_osfhandle(_fileno(file)));
}

} // namespace

std::FILE* OpenFile(const std::wstring& path, FileMode mode) {
    const wchar_t* const modes[] = {L"rbN", L"wbN", L"abN", L"wbxN"};
    return _wfopen(path.c_str(), modes[static_cast<int>(mode)]);
}

std::FILE* OpenPlainFile(const std::wstring& path) {
    std::FILE* const file = OpenFile(path, FileMode::Read);
    if (file != nullptr && GetFileType(HandleOf(file)) != FILE_TYPE_DISK) {
        std::fclose(file);
        return nullptr;
    }
    return file;
}

std::wstring RealPathOf(std::FILE* file) {
    constexpr std::size_t LongestPath = 32768; // of the system, its NUL included
    std::wstring path(LongestPath, L'\0');
    const DWORD length = GetFinalPathNameByHandleW(
        HandleOf(file), path.data(), static_cast<DWORD>(path.size()), FILE_NAME_NORMALIZED);
    path.resize(length < LongestPath ? length : 0);
    // The prefixes of long paths, which other ways to a path leave out.
    constexpr std::wstring_view Share = L"\\\\?\\UNC\\";
    constexpr std::wstring_view Long = L"\\\\?\\";
    if (path.starts_with(Share)) {
        return L"\\\\" + path.substr(Share.size());
    }
    return path.starts_with(Long) ? path.substr(Long.size()) : path;
}

bool FlushToDisk(std::FILE* file) {
    return _commit(_fileno(file)) == 0;
}

bool RenameOver(const std::wstring& from, const std::wstring& to) {
    return MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING) != 0;
}

void RemoveFile(const std::wstring& path) {
    DeleteFileW(path.c_str());
}

} // namespace Merivane::Text
