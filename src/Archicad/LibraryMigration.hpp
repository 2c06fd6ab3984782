#pragma once

namespace Merivane::Archicad {

/// Brings a project over from the library folder of the add-on's earlier name: the folder among the
/// user's documents is renamed, unless one of the new name is there, and the project's list of
/// libraries follows. To be called when a project was made or opened; what was done and what failed
/// goes to the run log, nothing where there was nothing to do.
void MigrateLibraryFolder();

} // namespace Merivane::Archicad
