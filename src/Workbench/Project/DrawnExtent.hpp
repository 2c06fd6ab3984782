#pragma once

#include "Host/Elements.hpp"
#include "Host/Types.hpp"

/// The upright rectangles around what is drawn, arcs and curves by their own extremes.
namespace Merivane::Workbench {

/// Empty until a place was added.
struct Extent {
    Host::Coordinate lowest; ///< [m]
    Host::Coordinate highest;
    bool empty = true;

    bool operator==(const Extent&) const = default;
};

void AddPlace(Extent& extent, const Host::Coordinate& place);

/// An arc from angle `begin` counter-clockwise to `end` [rad], or the whole circle.
void AddArc(Extent& extent, const Host::ArcData& arc);

/// A contour; the side that closes it counts where `closed`.
void AddContour(Extent& extent, const Host::Contour& contour, bool closed);

/// The cubic curve pieces through the points of a spline's memo.
void AddSpline(Extent& extent, const Host::ElementMemo& memo, bool closed);

} // namespace Merivane::Workbench
