#pragma once

#include <filesystem>
#include <string_view>

/// What keeps the paths of a catalogue, which anyone may have written, inside a folder.
namespace Merivane::Catalog {

/// True for a path that leads to a place below the folder that it is taken from, on every system:
/// no "..", no "/" at its start, no back slash, drive, stream or control character, and no name of
/// a device. Links on the disk are not looked at.
bool IsInnerPath(std::string_view path);

/// True when the file, once all links are followed, stands below the folder. False when either is
/// missing.
bool LeadsInside(const std::filesystem::path& folder, const std::filesystem::path& file);

/// True when nothing that stands on the way from the folder down to `file`, which must be spelled
/// as a path below it, is a link or anything else but folders and, at the end, a plain file.
bool IsFreeOfLinks(const std::filesystem::path& folder, const std::filesystem::path& file);

} // namespace Merivane::Catalog
