#pragma once

#include <string>
#include <string_view>

namespace Merivane::Text {

/// Characters that some system refuses in a file name, beside the control characters.
inline constexpr std::string_view RefusedInFileNames = "<>:\"/\\|?*";

/// True for a name that Windows takes for a device in every folder, whatever its extension and its
/// letter case: "nul", "com1.txt".
bool IsDeviceName(std::string_view name);

/// A title as the name of a file without its extension, on every system: "-" for the characters
/// that some system refuses and for control characters, no blanks or points at its end, at most 120
/// bytes, "_" in front of what would be empty, hidden, an option or a device.
std::string FileNameOf(std::string_view title);

} // namespace Merivane::Text
