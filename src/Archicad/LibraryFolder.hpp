#pragma once

#include <string>
#include <string_view>

#include "Host/Types.hpp"
#include "Text/NativePath.hpp"

/// The folder of the user's own where the add-on keeps the parts that it makes.
namespace Merivane::Archicad {

inline constexpr std::wstring_view LibraryFolderName = L"Vantoro Library";

/// Full path of a folder or file of this name in `folder`.
std::wstring PathIn(const std::wstring& folder, std::wstring_view name);

/// Full path of "Vantoro Library" among the user's documents, whether it is there or not. The
/// host's code when it can't tell where those are; `folder` is then as it was.
Host::ErrorCode DefaultLibraryFolder(std::wstring& folder);

/// Makes that folder where it is missing, and a library of the open project where it is none yet:
/// indices of parts that were given out before are then void. GeneralError where it can't be made
/// or nothing can be written into it; nothing has changed then. The host's code where the libraries
/// can't be read or added to. No undo step may run.
Host::ErrorCode EnsureLibraryFolderInProject(std::wstring& folder);

/// True for two spellings of one path: with or without a separator at the end, "." or "..", and
/// with `ignoreCase`, as the system has it, in capitals or not (ASCII and Latin-1 letters).
bool IsSameFolder(const std::wstring& a, const std::wstring& b,
                  bool ignoreCase = Text::PathsAreWide);

} // namespace Merivane::Archicad
