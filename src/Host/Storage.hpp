#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "Host/Types.hpp"

/// What the host keeps for the add-on. Defined by whichever host is linked; nothing throws.
/// Called on the main thread only.
namespace Merivane::Host {

/// Replaces the add-on's one block of preferences, which belongs to the user and not to a project.
/// The block is any bytes, zeros included; `version` is the add-on's own number for its form. On
/// failure a code, and the block is as it was.
ErrorCode SetPreferences(std::int32_t version, std::string_view block);

/// Reads the block and the version number it was written with. Where none was ever written,
/// `version` is 0 and `block` empty, and the call succeeds. On failure a code, and both are left as
/// they were.
ErrorCode GetPreferences(std::int32_t& version, std::string& block);

/// What the project keeps for the add-on under a name.
struct ProjectData {
    std::int16_t version = 1;   ///< the add-on's own number for its form
    std::uint16_t platform = 0; ///< sign of the system that wrote it; 0x5757 is Windows
    std::string bytes;          ///< any bytes

    bool operator==(const ProjectData&) const = default;
};

/// Stores data in the open project under `name`, replacing what was there; no undo step.
/// UndoScopeMisuse inside one; NoPlan; OutOfMemory.
ErrorCode StoreProjectData(std::string_view name, const ProjectData& data);

/// NoProjectData when nothing stands under `name`; `data` is then as it was.
ErrorCode GetProjectData(std::string_view name, ProjectData& data);

} // namespace Merivane::Host
