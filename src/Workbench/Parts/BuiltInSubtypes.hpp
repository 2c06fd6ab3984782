#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "Host/Library.hpp"
#include "Host/Types.hpp"

/// The subtypes that the host brings, as far as parts of ours derive from them.
namespace Merivane::Workbench::Parts {

/// The host's numbers of subtypes.
inline constexpr std::int32_t GeneralObjectSubtype = 106;
inline constexpr std::int32_t LightSubtype = 118;
inline constexpr std::int32_t ModelElementSubtype = 120;

/// Identity of a subtype; none for a number without one.
Host::Guid BuiltInSubtype(std::int32_t number);

/// The subtypes from the root to this one; the root and the guid alone for one that the host does
/// not bring.
std::vector<Host::Guid> AncestryOfSubtype(const Host::Guid& guid);

/// Lamp for what derives from the subtype of light, else object.
Host::PartType TypeByAncestry(const std::vector<Host::Guid>& ancestry);

/// Name of a built-in subtype for people, empty for another one.
std::string NameOfSubtype(const Host::Guid& guid);

/// "{GUID}-{GUID}": a part or subtype and its revision, which may be none.
std::string UniqueId(const Host::Guid& mainGuid, const Host::Guid& revision = {});

/// Reads the first guid of a unique id; the second may be missing. False for any other text.
bool ParseUniqueId(const std::string& text, Host::Guid& mainGuid);

} // namespace Merivane::Workbench::Parts
