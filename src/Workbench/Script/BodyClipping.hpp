#pragma once

#include <cstdint>

#include "Host/Types.hpp"
#include "Workbench/Bodies/FacedBody.hpp"
#include "Workbench/Script/ModelStatements.hpp"

/// Cutting bodies by planes. Faces must be plane; they may be concave and have holes.
namespace Merivane::Workbench {

/// True when every side of the faces is walked once in each direction.
bool IsClosedBody(const FacedBody& body);

/// Takes away what lies on the positive side of a plane. With `capped` the cut of a closed body is
/// closed by faces of `surface`. What only touches the plane from its positive side goes whole.
void CutBody(FacedBody& body, const CuttingPlane& plane, bool capped, std::int32_t surface);

/// Parts every face that a plane crosses into its pieces on both sides; a closed body stays closed.
void SplitFaces(FacedBody& body, const CuttingPlane& plane);

/// Takes away the part of a line on the positive side of a plane; false when none is left.
bool CutLine(Host::Coordinate3D& begin, Host::Coordinate3D& end, const CuttingPlane& plane);

/// Takes out the vertices that no face names.
void DropUnusedVertices(FacedBody& body);

} // namespace Merivane::Workbench
