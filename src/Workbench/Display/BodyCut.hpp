#pragma once

#include <vector>

#include "Host/Types.hpp"
#include "Workbench/Display/ViewBody.hpp"

namespace Merivane::Workbench {

/// What a plane across the view cuts of a body [m].
struct BodyCut {
    std::vector<std::vector<Host::Coordinate>> rings; ///< around its inside, holes among them
    std::vector<std::vector<Host::Coordinate>> lines; ///< where the body is not closed

    bool IsEmpty() const { return rings.empty() && lines.empty(); }
};

/// Cuts a body at the depth `z` of the view. A vertex in the plane counts as above it: a body that
/// touches the plane from below is cut, one that stands on it is not.
BodyCut CutBody(const ViewBody& body, double z);

} // namespace Merivane::Workbench
