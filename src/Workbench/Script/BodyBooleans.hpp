#pragma once

#include <array>
#include <vector>

#include "Workbench/Bodies/FacedBody.hpp"
#include "Workbench/Script/SolidBudget.hpp"
#include "Workbench/Script/SolidProbe.hpp"

/// Difference, intersection and union of bodies with plane faces. The faces of each are parted by
/// the planes of those of the other that they meet; each piece then lies inside, outside or on the
/// other body, and is kept, turned or dropped whole. Of faces in one plane those of the first body
/// stay: where both look the same way in a union and an intersection, where they look against each
/// other in a difference.
///
/// Closed bodies give closed ones. A first body that is open is taken for a sheet: what of it lies
/// outside the second one is the difference, and what lies inside the intersection, without faces
/// of the second. A second body that is open encloses nothing.
namespace Merivane::Workbench {

enum class BodyOperation { Difference, Intersection, Union };

/// The second body of several operations, made ready once. `body` must stand meanwhile.
struct BooleanTool {
    const FacedBody* body = nullptr;
    SolidProbe probe;
    bool closed = false;
};

BooleanTool MakeTool(const FacedBody& body);

/// What is left of both bodies, in `first`; each face keeps the surface that it had. Empty where
/// nothing is left. Of bodies whose boxes are apart a union is `first` alone, see `BodiesMeet`.
/// Returns false, `first` unchanged, when the budget does not reach.
bool CombineBodies(FacedBody& first, const BooleanTool& second, BodyOperation operation,
                   SolidBudget& budget);

/// True where the boxes of two bodies touch.
bool BodiesMeet(const FacedBody& first, const BooleanTool& second);

/// A line from place to place.
using BodyLine = std::array<Host::Coordinate3D, 2>;

/// Puts what of the lines lies outside a body, or with `inside` what lies in it, in their place.
/// False when the budget does not reach. A body that is open encloses nothing.
bool ClipLines(std::vector<BodyLine>& lines, const BooleanTool& body, bool inside,
               SolidBudget& budget);

} // namespace Merivane::Workbench
