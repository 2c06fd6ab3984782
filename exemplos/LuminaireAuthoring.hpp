#pragma once

#include <filesystem>
#include <string>

#include "Workbench/Project/Project.hpp"

namespace Merivane::Examples {

/// Makes the sample project's luminaires as a user makes them: writes the source objects into the
/// project's embedded library below `folder`, places one of each, and has the command that adds an
/// IES file make a luminaire of it, with prepared answers. The parts come to stand in the add-on's
/// library folder below `folder`, where the IES files must stand already ("ies"); part files that
/// were there are deleted first. `project` gets the libraries and their parts. Opens a session of
/// the embedded host and leaves an empty one. On failure returns false and sets `error`.
bool AuthorLuminaires(const std::filesystem::path& folder, Workbench::Project& project,
                      std::string& error);

} // namespace Merivane::Examples
