#include "Archicad/LibraryMigration.hpp"

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

#include "AddOn/RunLog/RunLog.hpp"
#include "Archicad/LibraryFolder.hpp"
#include "Host/Library.hpp"
#include "Host/Session.hpp"
#include "Text/NativePath.hpp"
#include "Text/Utf8.hpp"

namespace Merivane::Archicad {

namespace {

using Host::ErrorCode;

constexpr std::wstring_view OlderFolderName = L"Merivane Library";

bool IsFolder(const std::wstring& path) {
    std::error_code failure;
    return std::filesystem::is_directory(Text::NativePath(path), failure);
}

bool Exists(const std::wstring& path) {
    std::error_code failure;
    return std::filesystem::exists(Text::NativePath(path), failure);
}

/// False when the older folder could not be renamed: its parts are where they were, and the
/// project's list had better lead there.
bool RenameFolder(const std::wstring& older, const std::wstring& folder) {
    if (!IsFolder(older) || Exists(folder)) {
        return true;
    }
    std::error_code failure;
    std::filesystem::rename(Text::NativePath(older), Text::NativePath(folder), failure);
    if (failure) {
        Commands::ReportLine("biblioteca: a pasta " + Text::Narrow(OlderFolderName) +
                             " nao pode ser renomeada (" + failure.message() + ")");
        return false;
    }
    Commands::ReportLine("biblioteca: pasta renomeada para " + Text::Narrow(LibraryFolderName));
    return true;
}

/// The list with the older folder's entries replaced; a folder that it would hold twice stands
/// where it stood first.
std::vector<Host::Library> Replaced(const std::vector<Host::Library>& libraries,
                                    const std::wstring& older, const std::wstring& folder) {
    std::vector<Host::Library> replaced;
    bool taken = false;
    for (Host::Library library : libraries) {
        if (IsSameFolder(library.path, older)) {
            library.name = Text::Narrow(LibraryFolderName);
            library.path = folder;
            library.available = IsFolder(folder);
        }
        const bool isOurs = IsSameFolder(library.path, folder);
        if (!isOurs || !taken) {
            replaced.push_back(std::move(library));
        }
        taken = taken || isOurs;
    }
    return replaced;
}

void FollowInProject(const std::wstring& older, const std::wstring& folder) {
    std::vector<Host::Library> libraries;
    std::int32_t embedded = -1;
    if (Commands::CheckError("biblioteca: ler a lista de bibliotecas do projeto",
                             Host::GetLibraries(libraries, embedded)) != Host::NoError) {
        return;
    }
    if (std::none_of(libraries.begin(), libraries.end(), [&](const Host::Library& library) {
            return IsSameFolder(library.path, older);
        })) {
        return;
    }
    const ErrorCode code = Host::SetLibraries(Replaced(libraries, older, folder));
    if (Commands::CheckError("biblioteca: trocar Merivane Library por Vantoro Library", code) ==
        Host::NoError) {
        Commands::ReportLine("biblioteca: o projeto passou a usar " + Text::Narrow(folder) +
                             " no lugar de " + Text::Narrow(OlderFolderName));
    }
}

} // namespace

void MigrateLibraryFolder() {
    std::wstring documents;
    if (Host::GetSpecialFolder(Host::SpecialFolder::UserDocuments, documents) != Host::NoError) {
        return; // no documents, no older folder among them
    }
    const std::wstring older = PathIn(documents, OlderFolderName);
    const std::wstring folder = PathIn(documents, LibraryFolderName);
    if (RenameFolder(older, folder)) {
        FollowInProject(older, folder);
    }
}

} // namespace Merivane::Archicad
