#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "Host/Model3D.hpp"
#include "Host/Types.hpp"

/// Bodies of the model in the frame of a view: x to the right and y up on the paper, z towards the
/// viewer, all in metres of the model.
namespace Merivane::Workbench {

/// From the project's frame to a view's, as in `Host::Body`; turns only, so that nothing is scaled.
using ViewFrame = std::array<double, 12>;

/// From above: the project's frame itself.
ViewFrame FrameFromAbove();

/// Across the upright plane through a line, looking to its left: x along the line from `begin`, y
/// the height in the project, z 0 in the plane. The ends must be apart.
ViewFrame FrameAcrossLine(const Host::Coordinate& begin, const Host::Coordinate& end);

/// From a direction, both angles in radians: `azimuth` counter-clockwise from x to where the
/// viewer stands, `elevation` above the horizon.
ViewFrame FrameFromAround(double azimuth, double elevation);

struct ViewEdge {
    std::int32_t from = -1; ///< vertices, from 0
    std::int32_t to = -1;
    std::array<std::int32_t, 2> faces = {-1, -1}; ///< that it belongs to, -1 = none
};

/// A face with its outline and holes.
struct ViewFace {
    std::vector<std::vector<std::int32_t>> contours; ///< vertices, from 0
    std::vector<std::int32_t> edges;                 ///< of all contours, from 0
    Host::Coordinate3D normal;                       ///< of length 1, outwards
    std::int32_t surface = -1;                       ///< as in `Host::BodyFace`
};

struct ViewBody {
    std::vector<Host::Coordinate3D> vertices;
    std::vector<ViewEdge> edges;
    std::vector<ViewFace> faces; ///< those that have an area
    bool closed = false;         ///< every edge belongs to two faces
};

ViewBody MakeViewBody(const Host::Body& body, const ViewFrame& frame);

double Dot(const Host::Coordinate3D& a, const Host::Coordinate3D& b);

/// True when the edge is a crease or a border of its body: it does not lie between two faces that
/// go on nearly straight into each other.
bool IsSharp(const ViewBody& body, const ViewEdge& edge);

/// The rings of a face on the paper [m].
std::vector<std::vector<Host::Coordinate>> FlatRings(const ViewBody& body, const ViewFace& face);

/// True when an odd number of rings encloses the place.
bool IsInside(const std::vector<std::vector<Host::Coordinate>>& rings,
              const Host::Coordinate& place);

} // namespace Merivane::Workbench
