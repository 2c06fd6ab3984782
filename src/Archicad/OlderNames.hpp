#pragma once

#include <string>
#include <string_view>

#include "Host/Attributes.hpp"

/// Names of the add-on's own attributes. Earlier versions had the word "Merivane" where they have
/// "Vantoro".
namespace Merivane::Archicad {

/// An attribute's name as the host can hold it: at most 255 bytes, whole characters.
std::string CutAttributeName(std::string_view name);

/// True for a layer of the add-on's own, of this or an earlier version.
bool IsOwnLayerName(std::string_view name);

/// Gives an attribute that an earlier version made the name that it has now, unless there is one of
/// that name; it keeps its number, so elements, combinations and views go on with it. For layers,
/// line types and layer combinations; no undo step may run. What was renamed, or why it could not
/// be, goes to the run log.
void RenameOlderAttribute(Host::AttributeType type, std::string_view name);

} // namespace Merivane::Archicad
