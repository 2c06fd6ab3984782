#pragma once

#include <string>

namespace Merivane::Program {

/// The folder in which one run of the Radiance programs works.
struct WorkFolder {
    std::wstring path;
    bool own = false; ///< made by this run: it goes when the run is done
};

/// The folder that the user named, or a new one of this run's own in the system's temporary folder.
/// Returns false with one Portuguese sentence that names the folder when it can't be made or can't
/// be written in.
bool OpenWorkFolder(const std::string& named, WorkFolder& folder, std::string& error);

/// The folder `name` in the add-on's folder of the system's temporary folder; where that belongs to
/// another user of the machine, a new one of this run's own. Returns false as `OpenWorkFolder`
/// does.
bool OpenSharedWorkFolder(const std::string& name, WorkFolder& folder, std::string& error);

/// Removes a folder of the run's own with all in it; a folder that the user named stays.
void RemoveWorkFolder(const WorkFolder& folder);

} // namespace Merivane::Program
