#include "Workbench/SystemPlaces.hpp"

#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <string_view>
#include <system_error>

#include "Text/Ascii.hpp"
#include "Text/FileBytes.hpp"
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

/// Without a separator at its end; empty when there is none.
std::string HomeFolder() {
    std::string home = Variable("HOME");
    while (home.size() > 1 && home.ends_with('/')) {
        home.pop_back();
    }
    return IsFullPath(home) && home != "/" ? home : std::string();
}

std::string ConfigurationFolder() {
    std::string folder = Variable("XDG_CONFIG_HOME");
    if (IsFullPath(folder)) {
        return folder;
    }
    const std::string home = HomeFolder();
    return home.empty() ? home : home + "/.config";
}

/// The folder that the desktop's list of user folders tells (xdg-user-dirs): a line
/// `XDG_DOCUMENTS_DIR="$HOME/Documentos"`, in which the home folder itself means none.
std::string ToldDocumentsFolder(const std::string& home) {
    constexpr std::string_view key = "XDG_DOCUMENTS_DIR=\"";
    constexpr std::string_view homeSign = "$HOME";
    std::string bytes;
    Text::ReadFileBytes(Text::Widen(ConfigurationFolder() + "/user-dirs.dirs"), bytes);
    std::istringstream lines(bytes);
    std::string folder;
    for (std::string line; std::getline(lines, line);) {
        const std::string_view trimmed = Text::Trim(line);
        if (trimmed.starts_with(key) && trimmed.ends_with('"') && trimmed.size() > key.size()) {
            folder = trimmed.substr(key.size(), trimmed.size() - key.size() - 1);
        }
    }
    if (folder.starts_with(homeSign)) {
        folder.replace(0, homeSign.size(), home);
    }
    while (folder.size() > 1 && folder.ends_with('/')) {
        folder.pop_back();
    }
    return IsFullPath(folder) && folder != home ? folder : std::string();
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

std::wstring UserDocumentsFolder() {
    const std::string home = HomeFolder();
    std::string folder = ToldDocumentsFolder(home);
    if (folder.empty() && !home.empty()) {
        folder = home + "/Documents";
    }
    return Text::Widen(folder);
}

std::wstring UserPreferencesFile() {
    const std::string folder = ConfigurationFolder();
    return folder.empty() ? std::wstring() : Text::Widen(folder + "/vantoro/preferencias");
}

} // namespace Merivane::Workbench
