#include "Text/NativeFile.hpp"

#include <io.h>
#include <windows.h>

namespace Merivane::Text {

std::FILE* OpenFile(const std::wstring& path, FileMode mode) {
    const wchar_t* const modes[] = {L"rbN", L"wbN", L"abN"};
    return _wfopen(path.c_str(), modes[static_cast<int>(mode)]);
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
