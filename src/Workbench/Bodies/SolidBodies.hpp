#pragma once

#include "Workbench/Bodies/FacedBody.hpp"
#include "Workbench/Project/ModelGeometry.hpp"

/// Closed bodies of slabs, columns, beams, roofs and ground. Heights count from the element's
/// story. A geometry that encloses nothing gives a body without faces.
namespace Merivane::Workbench {

FacedBody BuildSlabBody(const SlabGeometry& slab);

FacedBody BuildPrismBody(const PrismGeometry& prism);

/// A bar is square to its line, also when that slopes; an upright one has its width along x and its
/// height along y.
FacedBody BuildBarBody(const BarGeometry& bar);

/// The plane that the pivot line and the slope tell is the underside; the roof stands on it.
FacedBody BuildRoofBody(const RoofGeometry& roof);

/// The top is cut into triangles; the outline's sides are upright.
FacedBody BuildMeshBody(const MeshGeometry& mesh);

} // namespace Merivane::Workbench
