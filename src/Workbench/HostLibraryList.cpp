#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

#include "Host/Library.hpp"
#include "Text/NativePath.hpp"
#include "Text/Utf8.hpp"
#include "Workbench/PartLibraries.hpp"
#include "Workbench/Session.hpp"

// The project's list of libraries.
namespace Merivane::Host {

namespace {

using Workbench::CurrentSession;
using Workbench::ProjectLibrary;

bool IsFolder(const std::wstring& path) {
    std::error_code code;
    return !path.empty() && std::filesystem::is_directory(Text::NativePath(path), code);
}

bool IsSameFolder(const std::wstring& a, const std::wstring& b) {
    return Workbench::IsInsideFolder(a, b) && Workbench::IsInsideFolder(b, a);
}

Library DescribeLibrary(const ProjectLibrary& library) {
    Library described;
    described.name = library.name;
    described.path = Workbench::FolderOfLibrary(library, CurrentSession().projectPath);
    described.kind = library.embedded ? LibraryKind::Embedded : LibraryKind::Local;
    described.available = IsFolder(described.path);
    described.readOnly = Workbench::IsReadOnlyFolder(described.path);
    if (described.path.empty()) {
        described.path = Text::Widen(library.path); // of a project that was never saved
    }
    return described;
}

void TakeLibraries(std::vector<ProjectLibrary> libraries) {
    Workbench::Session& session = CurrentSession();
    session.project.libraries = std::move(libraries);
    session.projectChanged = true;
    Workbench::RenewLibraryIndices();
    Workbench::ReadLibraries();
}

} // namespace

ErrorCode GetLibraries(std::vector<Library>& libraries, std::int32_t& embedded) {
    if (const ErrorCode code = Workbench::CountProjectCall("GetLibraries")) {
        return code;
    }
    libraries.clear();
    embedded = -1;
    for (const ProjectLibrary& library : CurrentSession().project.libraries) {
        if (library.embedded && embedded < 0) {
            embedded = static_cast<std::int32_t>(libraries.size());
        }
        libraries.push_back(DescribeLibrary(library));
    }
    return NoError;
}

ErrorCode AddLibrary(const std::wstring& folder) {
    if (const ErrorCode code = Workbench::CountStructureCall("AddLibrary")) {
        return code;
    }
    const Workbench::Session& session = CurrentSession();
    if (!IsFolder(folder)) {
        return BadParameters;
    }
    std::vector<ProjectLibrary> libraries = session.project.libraries;
    for (const ProjectLibrary& library : libraries) {
        if (IsSameFolder(folder, Workbench::FolderOfLibrary(library, session.projectPath))) {
            return NoError;
        }
    }
    ProjectLibrary added;
    added.path = Workbench::StoredLibraryPath(folder, session.projectPath);
    added.name = Text::Narrow(Text::WidePath(Text::NativePath(Text::Widen(added.path)).filename()));
    libraries.push_back(std::move(added));
    TakeLibraries(std::move(libraries));
    return NoError;
}

ErrorCode SetLibraries(const std::vector<Library>& libraries) {
    if (const ErrorCode code = Workbench::CountStructureCall("SetLibraries")) {
        return code;
    }
    const Workbench::Session& session = CurrentSession();
    const auto isEmbedded = [](const auto& library) { return library.embedded; };
    const auto& before = session.project.libraries;
    std::vector<ProjectLibrary> taken;
    for (const Library& library : libraries) {
        if (library.path.empty()) {
            return BadParameters;
        }
        const auto same =
            std::find_if(before.begin(), before.end(), [&library](const ProjectLibrary& known) {
                return DescribeLibrary(known).path == library.path;
            });
        ProjectLibrary kept;
        kept.name = library.name;
        kept.path = same != before.end()
                        ? same->path
                        : Workbench::StoredLibraryPath(library.path, session.projectPath);
        kept.embedded = library.kind == LibraryKind::Embedded;
        taken.push_back(std::move(kept));
    }
    const auto embedded = std::find_if(before.begin(), before.end(), isEmbedded);
    const bool keepsEmbedded =
        embedded == before.end() ||
        std::any_of(taken.begin(), taken.end(), [&embedded](const ProjectLibrary& library) {
            return library.embedded && library.path == embedded->path;
        });
    if (!keepsEmbedded) {
        return BadParameters;
    }
    TakeLibraries(std::move(taken));
    return NoError;
}

} // namespace Merivane::Host
