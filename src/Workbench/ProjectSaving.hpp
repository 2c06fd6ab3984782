#pragma once

#include <string>

namespace Merivane::Workbench {

/// Writes the open project whole or not at all, and makes the folder of its embedded library. In
/// another folder than before the parts of the embedded library go along, and other libraries are
/// named by their full paths. Returns false with one Portuguese sentence that names the file.
bool SaveOpenProject(const std::wstring& path, std::string& error);

} // namespace Merivane::Workbench
