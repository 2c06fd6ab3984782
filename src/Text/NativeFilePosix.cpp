#include "Text/NativeFile.hpp"

#include <unistd.h>

#include "Text/Utf8.hpp"

namespace Merivane::Text {

std::FILE* OpenFile(const std::wstring& path, FileMode mode) {
    // "e": a child started meanwhile must not inherit it.
    const char* const modes[] = {"rbe", "wbe", "abe"};
    return std::fopen(Narrow(path).c_str(), modes[static_cast<int>(mode)]);
}

bool FlushToDisk(std::FILE* file) {
    return ::fsync(::fileno(file)) == 0;
}

bool RenameOver(const std::wstring& from, const std::wstring& to) {
    return std::rename(Narrow(from).c_str(), Narrow(to).c_str()) == 0;
}

void RemoveFile(const std::wstring& path) {
    ::unlink(Narrow(path).c_str());
}

} // namespace Merivane::Text
