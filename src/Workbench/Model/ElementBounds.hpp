#pragma once

#include "Host/Types.hpp"
#include "Workbench/Model/ElementBodies.hpp"

namespace Merivane::Workbench {

/// An upright box [m].
struct ElementBox {
    Host::Coordinate3D lowest;
    Host::Coordinate3D highest;
};

/// The extent of an element's bodies or those of its parts. A wall's is that of the wall without
/// openings, an opening's the room that it takes through the wall, empty or not. Returns false,
/// leaving `box` as it was, where there is nothing to measure.
bool ElementBounds(const BodySource& source, const ProjectElement& element, ElementBox& box);

/// The same for one part of an element.
bool PartBounds(const BodySource& source, const ProjectElement& whole, const ElementPart& part,
                ElementBox& box);

} // namespace Merivane::Workbench
