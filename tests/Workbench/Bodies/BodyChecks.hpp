#pragma once

#include <vector>

#include "Host/Model3D.hpp"
#include "Workbench/Bodies/FacedBody.hpp"

/// What tests measure of bodies, in the project's frame.
namespace Merivane::Tests {

/// The contours of a face as places in the project [m].
std::vector<std::vector<Host::Coordinate3D>> FaceContours(const Host::Body& body,
                                                          const Host::BodyFace& face);

/// True when every edge is walked exactly once in each direction, no contour has fewer than 3
/// vertices, and every number names something.
bool IsClosed(const Host::Body& body);

/// Volume by the divergence theorem [m3]; below 0 for a body whose faces look inside.
double Volume(const Host::Body& body);

/// Twice the area of a face, along its normal.
Host::Coordinate3D DoubledArea(const Host::Body& body, const Host::BodyFace& face);

/// Area of a face less its holes [m2].
double FaceArea(const Host::Body& body, const Host::BodyFace& face);

/// Area of all faces of a surface [m2].
double SurfaceArea(const Host::Body& body, std::int32_t surface);

/// How many faces have a surface.
int FaceCount(const Host::Body& body, std::int32_t surface);

/// Farthest distance of a vertex from the plane of its face [m].
double Unevenness(const Host::Body& body);

/// The port's form of a body that has not been placed.
inline Host::Body Unplaced(const Workbench::FacedBody& faced) {
    return Workbench::MakeBody(faced, Workbench::UnmovedBody);
}

} // namespace Merivane::Tests
