#include "Workbench/ProjectSaving.hpp"

#include <filesystem>
#include <system_error>
#include <utility>
#include <vector>

#include "Text/NativePath.hpp"
#include "Text/Utf8.hpp"
#include "Workbench/PartLibraries.hpp"
#include "Workbench/Project/ProjectFile.hpp"
#include "Workbench/Session.hpp"

namespace Merivane::Workbench {

namespace {

namespace fs = std::filesystem;

std::wstring FolderOfFile(const std::wstring& path) {
    return Text::WidePath(fs::absolute(Text::NativePath(path)).parent_path());
}

bool HasOtherFolder(const std::wstring& before, const std::wstring& after) {
    const std::wstring from = FolderOfFile(before);
    const std::wstring to = FolderOfFile(after);
    return !before.empty() && !(IsInsideFolder(from, to) && IsInsideFolder(to, from));
}

/// The libraries as a file at `after` names them.
std::vector<ProjectLibrary> LibrariesFor(const Session& session, const std::wstring& after) {
    std::vector<ProjectLibrary> libraries = session.project.libraries;
    for (ProjectLibrary& library : libraries) {
        const std::wstring folder = FolderOfLibrary(library, session.projectPath);
        if (!library.embedded && !folder.empty()) {
            library.path = StoredLibraryPath(folder, after);
        }
    }
    return libraries;
}

/// Makes the folder of an embedded library, with the parts of the one before where that is another.
bool MakeEmbeddedFolder(const std::wstring& before, const std::wstring& folder,
                        std::string& error) {
    std::error_code code;
    const fs::path target = Text::NativePath(folder);
    fs::create_directories(target, code);
    if (!code && !before.empty() && fs::is_directory(Text::NativePath(before), code)) {
        fs::copy(Text::NativePath(before), target,
                 fs::copy_options::recursive | fs::copy_options::skip_existing, code);
    }
    if (code) {
        error = "a pasta da biblioteca embutida \"" + Text::Narrow(folder) +
                "\" não pode ser feita: o disco a recusou";
    }
    return !code;
}

} // namespace

bool SaveOpenProject(const std::wstring& path, std::string& error) {
    Session& session = CurrentSession();
    const std::wstring before = session.projectPath;
    const bool moves = HasOtherFolder(before, path);
    std::vector<ProjectLibrary> libraries = session.project.libraries;
    if (moves) {
        session.project.libraries = LibrariesFor(session, path);
    }
    if (!SaveProject(path, session.project, error)) {
        session.project.libraries = std::move(libraries);
        return false;
    }
    session.projectPath = path;
    session.projectChanged = false;
    bool good = true;
    bool hasEmbedded = false;
    for (const ProjectLibrary& library : session.project.libraries) {
        if (library.embedded) {
            hasEmbedded = true;
            const std::wstring old = moves ? FolderOfLibrary(library, before) : std::wstring();
            good = MakeEmbeddedFolder(old, FolderOfLibrary(library, path), error) && good;
        }
    }
    if (moves && hasEmbedded) {
        ReadLibraries(); // the parts stand in the new folder
    }
    return good;
}

} // namespace Merivane::Workbench
