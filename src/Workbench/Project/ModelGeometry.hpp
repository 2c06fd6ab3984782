#pragma once

#include <string>
#include <variant>
#include <vector>

#include "Host/Elements.hpp"
#include "Host/Types.hpp"

/// What building elements are made of. The port shows of them only their bodies; their geometry is
/// the embedded host's own. Heights count from the element's story, surfaces are attributes.
namespace Merivane::Workbench {

/// A wall on its reference line, which is its middle.
struct WallGeometry {
    Host::Coordinate begin;
    Host::Coordinate end;
    double bend =
        0.0; ///< angle of the arc from begin to end, counter-clockwise [rad]; 0 = straight
    double thickness = 0.2;           ///< [m]
    double bottom = 0.0;              ///< [m]
    double height = 2.8;              ///< [m]
    Host::AttributeIndex leftSurface; ///< to the left of the line
    Host::AttributeIndex rightSurface;
    Host::AttributeIndex edgeSurface; ///< ends, top, bottom and reveals

    bool operator==(const WallGeometry&) const = default;
};

/// A window or door in a wall: a hole, a frame around it, and a pane or leaf of two faces.
struct OpeningGeometry {
    Host::Guid wall;
    double along = 0.0;  ///< middle of the opening, from the wall's begin along its line [m]
    double width = 1.0;  ///< [m]
    double sill = 0.0;   ///< above the wall's bottom [m]
    double height = 2.1; ///< [m]
    double frame = 0.05; ///< width of the frame's members; 0 = none [m]
    double depth = 0.05; ///< thickness of frame and leaf [m]
    Host::AttributeIndex frameSurface;
    Host::AttributeIndex paneSurface; ///< glass or leaf
    bool open = false;                ///< an empty opening: no frame, no pane

    bool operator==(const OpeningGeometry&) const = default;
};

/// A level plate.
struct SlabGeometry {
    Host::Polygon polygon;
    double top = 0.0; ///< [m]
    double thickness = 0.2;
    Host::AttributeIndex topSurface;
    Host::AttributeIndex bottomSurface;
    Host::AttributeIndex edgeSurface;

    bool operator==(const SlabGeometry&) const = default;
};

/// An upright prism: a segment of a column.
struct PrismGeometry {
    Host::Polygon polygon;
    double bottom = 0.0; ///< [m]
    double height = 0.0; ///< [m]
    Host::AttributeIndex surface;

    bool operator==(const PrismGeometry&) const = default;
};

/// A rectangular bar: a segment of a beam. The line is the middle of its top.
struct BarGeometry {
    Host::Coordinate3D begin;
    Host::Coordinate3D end;
    double width = 0.2;
    double height = 0.4;
    Host::AttributeIndex surface;

    bool operator==(const BarGeometry&) const = default;
};

/// One plane of a roof: its polygon lies on the plane that rises from the pivot line to its left.
struct RoofGeometry {
    Host::Polygon polygon; ///< in plan
    Host::Coordinate pivotBegin;
    Host::Coordinate pivotEnd;
    double level = 0.0;     ///< of the pivot line [m]
    double slope = 0.0;     ///< [rad], 0 up to under pi / 2
    double thickness = 0.2; ///< upright [m]
    Host::AttributeIndex topSurface;
    Host::AttributeIndex bottomSurface;
    Host::AttributeIndex edgeSurface;

    bool operator==(const RoofGeometry&) const = default;
};

/// Ground: a polygon whose vertices have heights of their own, with a skirt down to `bottom`.
struct MeshGeometry {
    std::vector<Host::Coordinate3D> outline;
    double bottom = 0.0; ///< [m], below every vertex
    Host::AttributeIndex topSurface;
    Host::AttributeIndex edgeSurface;

    bool operator==(const MeshGeometry&) const = default;
};

/// A face of a given body; indices from 0. The first contour is the outline.
struct GivenFace {
    std::vector<std::vector<std::int32_t>> contours;
    Host::AttributeIndex surface; ///< 0 = none
    std::string scriptSurface;    ///< name of a surface of the part's own; then `surface` is 0

    bool operator==(const GivenFace&) const = default;
};

/// A body told by its faces: parts of stairs, railings and curtain walls, shells, skylights,
/// objects and lamps (in the part's own frame).
struct GivenBody {
    std::vector<Host::Coordinate3D> vertices; ///< [m]
    std::vector<GivenFace> faces;

    bool operator==(const GivenBody&) const = default;
};

/// Geometry of an element; drawn ones, Zones, Morphs, objects and lamps have none here.
using ModelGeometry =
    std::variant<std::monostate, WallGeometry, OpeningGeometry, SlabGeometry, PrismGeometry,
                 BarGeometry, RoofGeometry, MeshGeometry, GivenBody>;

} // namespace Merivane::Workbench
