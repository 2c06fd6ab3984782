#include "Workbench/SystemPlaces.hpp"

#include <cstdlib>
#include <filesystem>
#include <string_view>
#include <system_error>

#include "Text/Utf8.hpp"

#if defined(__APPLE__)
#include <array>
#include <mach-o/dyld.h>
#endif

namespace Merivane::Workbench {

namespace {

std::string Variable(const char* name) {
    const char* const value = std::getenv(name);
    return value ? value : "";
}

// A relative path in these variables has no meaning, and is passed over.
bool IsFullPath(std::string_view path) {
    return path.starts_with('/');
}

} // namespace

std::wstring ExecutablePath() {
    std::error_code code;
#if defined(__APPLE__)
    std::array<char, 4096> buffer = {};
    auto size = static_cast<std::uint32_t>(buffer.size());
    if (_NSGetExecutablePath(buffer.data(), &size) != 0) {
        return {};
    }
    const std::filesystem::path path = std::filesystem::canonical(buffer.data(), code);
#else
    const std::filesystem::path path = std::filesystem::read_symlink("/proc/self/exe", code);
#endif
    return code ? std::wstring() : Text::Widen(path.native());
}

std::wstring SystemTemporaryFolder() {
    std::string folder = Variable("TMPDIR");
    while (folder.size() > 1 && folder.ends_with('/')) {
        folder.pop_back();
    }
    return IsFullPath(folder) && folder != "/" ? Text::Widen(folder) : L"/tmp";
}

std::wstring UserPreferencesFile() {
    std::string folder = Variable("XDG_CONFIG_HOME");
    if (!IsFullPath(folder)) {
        const std::string home = Variable("HOME");
        if (!IsFullPath(home)) {
            return {};
        }
        folder = home + "/.config";
    }
    return Text::Widen(folder + "/vantoro/preferencias");
}

} // namespace Merivane::Workbench
