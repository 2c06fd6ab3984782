#pragma once

#include <vector>

#include "Host/Model3D.hpp"
#include "Simulation/Geometry.hpp"

/// Faces of the host's bodies as polygons in the project.
namespace Merivane::Archicad {

/// Where a vertex of the body lies in the project [m].
Simulation::Point3D PlaceInProject(const Host::Body& body, const Host::Coordinate3D& vertex);

/// The contours of a face as places in the project [m]. Contours under 3 vertices are left out, and
/// so are those that name an edge or a vertex which the body does not have.
std::vector<std::vector<Simulation::Point3D>> ReadContours(const Host::Body& body,
                                                           const Host::BodyFace& face);

/// Mean of the vertices; all 0 without any.
Simulation::Point3D MeanPlace(const std::vector<Simulation::Point3D>& places);

} // namespace Merivane::Archicad
