#pragma once

#include "Host/Types.hpp"

#include <cstdint>
#include <string>
#include <string_view>

/// What the host keeps for the add-on. Defined by whichever host is linked; nothing throws.
namespace Merivane::Host {

/// Replaces the add-on's one block of preferences, which belongs to the user and not to a project.
ErrorCode SetPreferences(std::int32_t version, std::string_view block);

/// Reads the block and the version number it was written with. Where none was ever written,
/// `version` is 0 and `block` empty, and the call succeeds.
ErrorCode GetPreferences(std::int32_t& version, std::string& block);

} // namespace Merivane::Host
