#pragma once

#include <string>
#include <string_view>

#include "Host/Types.hpp"

/// The add-on's values in the one block of preferences that the host keeps for it. They belong to
/// the user and hold in all projects.
namespace Merivane::Archicad {

/// Reads the value of a key, any bytes; empty when there is none or the block is of another
/// version. On failure the host's code, and `value` is empty.
Host::ErrorCode ReadPreference(std::string_view key, std::string& value);

/// Replaces or adds the value of a key, 8 bytes long; the other values stay. On failure the host's
/// code, and the block is as it was: one that can't be read is not written over.
Host::ErrorCode WritePreference(std::string_view key, std::string_view value);

} // namespace Merivane::Archicad
