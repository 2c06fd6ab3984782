#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Workbench/Parts/PartDocument.hpp"
#include "Workbench/Project/Project.hpp"

/// The library folders of the open project and the part files in them.
namespace Merivane::Workbench {

/// Ending of part files.
inline constexpr std::wstring_view PartFileEnding = L".gsm";

/// Full path of a library's folder; of a relative one by the project's folder, empty where the
/// project was never saved.
std::wstring FolderOfLibrary(const ProjectLibrary& library, const std::wstring& projectPath);

/// How the project's file names a folder: relative to its own where the folder lies inside, UTF-8.
std::string StoredLibraryPath(const std::wstring& folder, const std::wstring& projectPath);

/// True when `folder` is `library` or lies inside.
bool IsInsideFolder(const std::wstring& folder, const std::wstring& library);

/// True for a folder that is there and that nobody may write in.
bool IsReadOnlyFolder(const std::wstring& folder);

/// The part files of a folder and of its subfolders, in the order of their paths.
std::vector<std::wstring> ListPartFiles(const std::wstring& folder);

/// The part of a file as the project has it. `document` tells its angles in degrees, `parameters`
/// of the project's part in radians.
ProjectPart MakeLibraryPart(std::string name, std::wstring path, Parts::PartDocument document);

/// The parameters of a part as its file tells them: angles in degrees, texts as XML holds them and
/// cut to 255 units of UTF-16, one column as none.
Parts::ParameterSection MakeFileParameters(double sizeA, double sizeB,
                                           const std::vector<Host::LibraryParameter>& parameters);

/// Reads the part files of all libraries of the open project into its list of parts: each part at
/// the place that it has already, new ones behind. What can't be read, what has the name of another
/// part, folders that are not there and parts that are gone are told in report lines.
void ReadLibraries();

/// The subtypes above a part that derives from `parent`, root first, `parent` last.
std::vector<Host::Guid> AncestryBelow(const Project& project, const Host::Guid& parent);

} // namespace Merivane::Workbench
