#pragma once

#include <vector>

#include "Drawing/DisplayList.hpp"

/// Lines and areas cut off at the edges of a box; the display list itself knows no clipping.
namespace Merivane::Workbench {

struct ClipBox {
    double left = 0.0;
    double top = 0.0; ///< less than `bottom`
    double right = 0.0;
    double bottom = 0.0;
};

/// The pieces of a line that lie inside the box, in their order; the box's edges belong to it. A
/// line that leaves and comes back gives several.
std::vector<std::vector<Drawing::Point>> ClipLine(const std::vector<Drawing::Point>& points,
                                                  const ClipBox& box);

/// The part of a polygon inside the box; empty when nothing of it is.
std::vector<Drawing::Point> ClipPolygon(const std::vector<Drawing::Point>& points,
                                        const ClipBox& box);

} // namespace Merivane::Workbench
