#pragma once

#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <vector>

#include "Workbench/Bodies/FacedBody.hpp"
#include "Workbench/Script/ModelStatements.hpp"

/// Parting one face by a plane.
namespace Merivane::Workbench {

/// A body while a plane cuts it. A vertex on the plane counts as on its negative side, so that an
/// edge either crosses the plane or lies on one side; where an edge ends on the plane its cut is
/// that end. Both faces of an edge get the same vertex.
struct PlaneCut {
    FacedBody& body;
    Host::Coordinate3D normal;     ///< length 1
    std::vector<double> distances; ///< of each vertex from the plane [m]
    std::unordered_map<std::uint64_t, std::int32_t> newVertices = {}; ///< by the edge's ends
};

PlaneCut StartCut(FacedBody& body, const CuttingPlane& plane);

/// True for a vertex on the positive side.
bool IsBeyond(const PlaneCut& cut, std::int32_t vertex);

/// A face in two parts, each of any number of faces. `seams` are the sides of the kept part along
/// the plane.
struct FaceParts {
    struct Seam {
        std::int32_t from = 0;
        std::int32_t to = 0;
    };
    std::vector<ContouredFace> kept; ///< on the negative side
    std::vector<ContouredFace> gone; ///< filled where `both` is asked for
    std::vector<Seam> seams;
};

FaceParts SplitFace(PlaneCut& cut, const ContouredFace& face, bool both);

/// Faces from closed contours in a plane: counter-clockwise ones, seen against `normal`, are
/// outlines; the others holes of the smallest outline around them.
std::vector<ContouredFace> NestContours(const FacedBody& body, const Host::Coordinate3D& normal,
                                        std::vector<std::vector<std::int32_t>> contours,
                                        std::int32_t surface);

} // namespace Merivane::Workbench
