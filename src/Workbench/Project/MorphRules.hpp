#pragma once

#include "Host/Elements.hpp"
#include "Host/Types.hpp"
#include "Workbench/Project/Project.hpp"

namespace Merivane::Workbench {

/// The body of a Morph: vertices are shared, and an edge belongs to two faces at most, which walk
/// it in opposite directions. BadPolygon for a body without faces, a contour of fewer than three
/// vertices, an edge of no length, an edge of three faces or walked twice in one direction, and a
/// place that is not finite; BadIndex for a vertex or a surface that does not exist.
Host::ErrorCode CheckMorphBody(const Project& project, const Host::MorphBody& body);

} // namespace Merivane::Workbench
