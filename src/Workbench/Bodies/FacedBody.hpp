#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "Host/Model3D.hpp"
#include "Host/Types.hpp"

/// Bodies while they are being built: faces that name their vertices. The port's form, in which
/// faces name edges that two of them share, follows at the end.
namespace Merivane::Workbench {

/// A face by its vertices, counted from 0. The first contour is the outline, counter-clockwise from
/// outside; every other one is a hole, clockwise.
struct ContouredFace {
    std::vector<std::vector<std::int32_t>> contours;
    std::int32_t surface = -1; ///< as in `Host::BodyFace`
};

struct FacedBody {
    std::vector<Host::Coordinate3D> vertices; ///< [m]
    std::vector<ContouredFace> faces;
};

/// From a body's own frame to the project's, as in `Host::Body`.
using BodyTransform = std::array<double, 12>;

inline constexpr BodyTransform UnmovedBody = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0};

/// Lifts a body by `level` [m].
BodyTransform LiftBody(double level);

/// The place in the project of a place in the body's frame [m].
Host::Coordinate3D TransformPlace(const BodyTransform& transform, const Host::Coordinate3D& place);

/// The port's form of a body. Two faces that walk the same side in opposite directions share one
/// edge; where more than two meet, each further pair gets an edge of its own.
Host::Body MakeBody(const FacedBody& faced, const BodyTransform& transform);

/// Number of a surface for the faces of a body: -1 for none.
std::int32_t FaceSurface(Host::AttributeIndex surface);

/// Turns every face around, for a body that was mirrored.
void TurnFaces(FacedBody& body);

} // namespace Merivane::Workbench
