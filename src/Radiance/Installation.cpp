#include "Radiance/Installation.hpp"

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "Radiance/CommandLine.hpp"
#include "Radiance/Environment.hpp"
#include "Radiance/ProcessRunner.hpp"
#include "Radiance/SystemPlaces.hpp"
#include "Text/NativePath.hpp"
#include "Text/Utf8.hpp"

namespace Merivane::Radiance {

namespace {

constexpr std::uint32_t VersionTimeLimit = 10000; // ms

bool IsFile(const std::filesystem::path& path) {
    std::error_code ignored;
    return std::filesystem::is_regular_file(path, ignored);
}

bool IsFolder(const std::filesystem::path& path) {
    std::error_code ignored;
    return std::filesystem::is_directory(path, ignored);
}

bool HasTool(const std::wstring& binFolder, const std::string& tool) {
    return IsFile(Text::NativePath(ToolPath(binFolder, tool)));
}

/// The entries of PATH as they stand, without the empty ones.
std::vector<std::wstring> SearchPath() {
    std::vector<std::wstring> folders;
    const std::wstring path = EnvironmentValue(L"PATH").value_or(L"");
    const wchar_t separator = PathListSeparator();
    std::size_t begin = 0;
    while (begin < path.size()) {
        const std::size_t end = std::min(path.find(separator, begin), path.size());
        if (end > begin) {
            folders.push_back(path.substr(begin, end - begin));
        }
        begin = end + 1;
    }
    return folders;
}

std::wstring LibFolderBeside(const std::wstring& binFolder) {
    std::filesystem::path bin = Text::NativePath(binFolder);
    if (!bin.has_filename()) {
        bin = bin.parent_path(); // a separator at the end
    }
    const std::filesystem::path lib = bin.parent_path() / "lib";
    return IsFolder(lib) ? Text::WidePath(lib) : std::wstring();
}

std::string ToolVersion(const Installation& installation) {
    const std::wstring commandLine =
        JoinCommandLine(ToolPath(installation.binFolder, "rtrace"), {L"-version"});
    std::string output;
    if (!CaptureCommandOutput(commandLine, output, installation.libFolder, VersionTimeLimit)) {
        return {};
    }
    return output.substr(0, output.find_first_of("\r\n"));
}

} // namespace

const std::vector<std::string>& RequiredTools() {
    static const std::vector<std::string> Tools = {"ies2rad", "xform", "oconv", "rtrace"};
    return Tools;
}

std::wstring ToolPath(const std::wstring& binFolder, const std::string& tool) {
    return Text::WidePath(Text::NativePath(binFolder) /
                          Text::NativePath(Text::Widen(tool) + ToolSuffix()));
}

std::vector<BinFolderCandidate> CandidateBinFolders(const std::wstring& addOnFolder) {
    std::vector<BinFolderCandidate> candidates;
    if (!addOnFolder.empty()) {
        const std::filesystem::path own = Text::NativePath(addOnFolder);
        candidates.push_back({Text::WidePath(own / "Vantoro Radiance" / "bin"), SourceAddOn});
    }
    const std::wstring radiance = EnvironmentValue(L"RADIANCE").value_or(L"");
    if (!radiance.empty()) {
        candidates.push_back({Text::WidePath(Text::NativePath(radiance) / "bin"), SourceSystem});
    }
    for (const std::wstring& folder : UsualBinFolders()) {
        candidates.push_back({folder, SourceSystem});
    }
    for (const std::wstring& folder : SearchPath()) {
        candidates.push_back({folder, SourceSystem});
    }
    return candidates;
}

Installation FindInstallation(const std::wstring& addOnFolder) {
    Installation installation;
    for (const BinFolderCandidate& candidate : CandidateBinFolders(addOnFolder)) {
        installation.searchedFolders.push_back(candidate.folder);
        if (HasTool(candidate.folder, "rtrace")) {
            installation.binFolder = candidate.folder;
            installation.source = candidate.source;
            break;
        }
    }
    if (installation.binFolder.empty()) {
        return installation;
    }
    for (const std::string& tool : RequiredTools()) {
        if (!HasTool(installation.binFolder, tool)) {
            installation.missingTools.push_back(tool);
        }
    }
    installation.complete = installation.missingTools.empty();
    installation.libFolder = LibFolderBeside(installation.binFolder);
    installation.version = ToolVersion(installation);
    return installation;
}

} // namespace Merivane::Radiance
