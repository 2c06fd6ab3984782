#pragma once

#include <string>
#include <vector>

/// How the operating system names programs, and where Radiance usually stands on it.
namespace Merivane::Radiance {

/// Ending of an executable's file name: ".exe" on Windows, nothing elsewhere.
const std::wstring& ToolSuffix();

/// What stands between two folders in the environment's PATH.
wchar_t PathListSeparator();

/// The `bin` folders of usual installations, whether or not they exist.
std::vector<std::wstring> UsualBinFolders();

} // namespace Merivane::Radiance
