#include "Text/FileSync.hpp"

#include <filesystem>
#include <system_error>

#include "Text/Utf8.hpp"

#include <unistd.h>

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

bool PathExists(const std::wstring& path) {
    std::error_code code;
    const std::filesystem::file_status status = std::filesystem::symlink_status(Narrow(path), code);
    return status.type() != std::filesystem::file_type::not_found;
}

bool MakeFolders(const std::wstring& path) {
    std::error_code code;
    std::filesystem::create_directories(Narrow(path), code);
    return std::filesystem::is_directory(Narrow(path), code);
}

} // namespace Merivane::Text
