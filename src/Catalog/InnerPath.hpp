#pragma once

#include <filesystem>
#include <string>
#include <string_view>

/// What keeps the paths of a catalogue, which anyone may have written, inside a folder.
namespace Merivane::Catalog {

/// Why a path can't be that of a catalogue's file.
enum class PathFault {
    None,
    LeadsOut, ///< "..", or a "/" at its start
    LinkLeadsOut,
    NoFileName, ///< empty, or its last part is empty, "." or a blank
    BackSlash,
    Colon, ///< of a drive or a stream
    ControlCharacter,
    DeviceName, ///< of Windows, whatever the system here
};

/// What is wrong with a path that must lead to a file below the folder that it is taken from, on
/// every system. Links on the disk are not looked at.
PathFault FaultOfPath(std::string_view path);

/// The sentence on a path that is refused, in Portuguese without accents.
std::string RefusedPath(PathFault fault, std::string_view path);

/// True for a path without a fault.
bool IsInnerPath(std::string_view path);

/// True when a path without links, as the system tells that of an opened file, leads below the
/// folder once the folder's own links are followed. False when there is no such folder.
bool StandsBelow(const std::filesystem::path& folder, const std::filesystem::path& realPath);

/// True when nothing that stands on the way from the folder down to `file`, which must be spelled
/// as a path below it, is a link or anything else but folders and, at the end, a plain file.
bool IsFreeOfLinks(const std::filesystem::path& folder, const std::filesystem::path& file);

} // namespace Merivane::Catalog
