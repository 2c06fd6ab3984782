#include "Text/NativeFile.hpp"

#include <array>
#include <climits>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "Text/Utf8.hpp"

namespace Merivane::Text {

std::FILE* OpenFile(const std::wstring& path, FileMode mode) {
    // "e": a child started meanwhile must not inherit it.
    const char* const modes[] = {"rbe", "wbe", "abe", "wbxe"};
    return std::fopen(Narrow(path).c_str(), modes[static_cast<int>(mode)]);
}

std::FILE* OpenPlainFile(const std::wstring& path) {
    const int number = ::open(Narrow(path).c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    if (number < 0) {
        return nullptr;
    }
    struct stat status = {};
    std::FILE* const file =
        ::fstat(number, &status) == 0 && S_ISREG(status.st_mode) ? ::fdopen(number, "rb") : nullptr;
    if (file == nullptr) {
        ::close(number);
    }
    return file;
}

std::wstring RealPathOf(std::FILE* file) {
#ifdef __APPLE__
    std::array<char, PATH_MAX> place = {};
    return ::fcntl(::fileno(file), F_GETPATH, place.data()) == 0 ? Widen(place.data())
                                                                 : std::wstring();
#else
    const std::string link = "/proc/self/fd/" + std::to_string(::fileno(file));
    std::array<char, PATH_MAX> place = {};
    const ssize_t length = ::readlink(link.c_str(), place.data(), place.size());
    const bool isWhole = length > 0 && static_cast<std::size_t>(length) < place.size();
    return isWhole ? Widen({place.data(), static_cast<std::size_t>(length)}) : std::wstring();
#endif
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
