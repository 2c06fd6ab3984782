#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "Workbench/Project/Project.hpp"

/// The project file (`.vantoro`): one JSON document, told key by key in docs/projeto.md. Attributes
/// and parts are named by their names, stories by their indices, all else by its guid.
namespace Merivane::Workbench {

/// The latest format of the file that is understood, and the one that is written.
inline constexpr std::int32_t ProjectFormat = 1;

/// Reads the bytes of a project file. On the first thing that can't be accepted returns false with
/// `error` one Portuguese sentence that begins with the place; `project` is then as it was.
bool ParseProject(std::string_view bytes, Project& project, std::string& error);

/// Reads a project file; `error` then begins with the path.
bool ReadProject(const std::wstring& path, Project& project, std::string& error);

/// The text of the file. The same project always gives the same bytes, and what they hold reads
/// back the same. What no element of its type has (a wall's paragraphs) is left out, and of placed
/// parts the values that are their part's.
std::string WriteProject(const Project& project);

/// Writes the file whole or not at all. Refused, with the reason and with the path's file as it
/// was: a project that would not be read back, a path whose file is no project or one of a newer
/// format, and whatever the disk refuses.
bool SaveProject(const std::wstring& path, const Project& project, std::string& error);

} // namespace Merivane::Workbench
