#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "Workbench/Bodies/FacedBody.hpp"
#include "Workbench/Script/BoxTree.hpp"
#include "Workbench/Script/ModelStatements.hpp"

/// Where a place lies of a closed body: inside, outside, or on one of its faces.
namespace Merivane::Workbench {

/// Places nearer than this are one place [m]. It lies above the 1e-9 m within which cutting takes a
/// vertex for one on the plane, so that what was cut twice the same way meets again.
inline constexpr double SamePlace = 4e-9;

/// A closed body made ready for questions; it must stand while it is asked.
struct SolidProbe {
    const FacedBody* body = nullptr;
    std::vector<CuttingPlane> planes; ///< of each face, normals of length 1, or 0 without area
    BoxTree tree;                     ///< of the faces
    SpaceBox box;
};

SolidProbe BuildProbe(const FacedBody& body);

/// The plane of a face, its normal outwards and 1 long; 0 for a face without area.
CuttingPlane FacePlane(const FacedBody& body, const ContouredFace& face);

/// A place inside a plane face, far from its sides as far as a few tries tell. None for a face
/// without area.
std::optional<Host::Coordinate3D> InnerPlace(const FacedBody& body, const ContouredFace& face,
                                             const CuttingPlane& plane);

enum class SolidSide { Inside, Outside, FaceAlong, FaceAgainst };

/// On which side of the body's faces a place is: how often a half line from it leaves the body.
/// Where the place is on a face that is parallel to one of `normal`, that face looks along it or
/// against it. `looks` grows by what was looked at.
SolidSide LocatePlace(const SolidProbe& probe, const Host::Coordinate3D& place,
                      const Host::Coordinate3D& normal, std::size_t& looks);

} // namespace Merivane::Workbench
