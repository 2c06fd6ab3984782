#pragma once

#include <utility>
#include <vector>

#include "Host/Types.hpp"
#include "Workbench/Display/ViewBody.hpp"

namespace Merivane::Workbench {

/// The outlines and creases of the bodies of one element as the viewer sees them, what lies nearer
/// than the depth `nearest` taken away; parts that another face of them covers are left out [m].
std::vector<std::pair<Host::Coordinate, Host::Coordinate>>
SeenOutlines(const std::vector<ViewBody>& bodies, double nearest);

} // namespace Merivane::Workbench
