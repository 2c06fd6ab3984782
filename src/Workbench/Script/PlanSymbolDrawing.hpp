#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include "Host/Types.hpp"

/// What a plan script draws, in the part's own frame [m]: every transformation of the script is
/// worked in. Plain records.
namespace Merivane::Workbench {

/// Attributes in force when a shape was drawn.
struct PlanLook {
    std::int32_t pen = 1;
    std::int32_t lineType = 1;  ///< attribute number
    std::int32_t fill = 0;      ///< attribute number; 0 = empty
    std::int32_t drawIndex = 0; ///< 10 to 50 in tens; 0 = in the order of drawing

    bool operator==(const PlanLook&) const = default;
};

struct PlanLine {
    Host::Coordinate begin;
    Host::Coordinate end;
    PlanLook look;

    bool operator==(const PlanLine&) const = default;
};

/// A circle or arc, counter-clockwise from `begin` to `end`. One that a transformation makes an
/// ellipse is given as a polygon's open edge instead.
struct PlanArc {
    Host::Coordinate center;
    double radius = 0.0; ///< [m]
    bool whole = false;
    double begin = 0.0; ///< [degrees]
    double end = 0.0;
    PlanLook look;

    bool operator==(const PlanArc&) const = default;
};

/// One ring of a polygon. `visible[i]` tells whether the edge from vertex i to the next is drawn.
struct PlanRingShape {
    std::vector<Host::Coordinate> vertices; ///< arcs are cut into chords
    std::vector<bool> visible;

    bool operator==(const PlanRingShape&) const = default;
};

/// A polygon or a broken line. The first ring is the outline, the others are holes.
struct PlanPolygon {
    std::vector<PlanRingShape> rings;
    bool outlined = true;
    bool filled = false;
    bool closed = true;       ///< false: the edge from the last vertex to the first does not exist
    std::int32_t fillPen = 0; ///< 0 = the pen's own
    std::int32_t backgroundPen = 0; ///< 0 = see-through, -1 = the colour of the paper
    PlanLook look;

    bool operator==(const PlanPolygon&) const = default;
};

struct PlanText {
    Host::Coordinate position;
    std::string text;      ///< UTF-8; lines parted by LF
    double angle = 0.0;    ///< of its base line [degrees]
    bool mirrored = false; ///< read from behind: its upper side lies clockwise of the base line
    std::string font;
    double size = 5.0;       ///< height on paper [mm]
    std::int32_t anchor = 1; ///< 1 left top to 9 right bottom, row after row
    std::int32_t face = 0;   ///< 1 bold + 2 italic + 4 underlined
    PlanLook look;

    bool operator==(const PlanText&) const = default;
};

struct PlanHotspot {
    Host::Coordinate position;
    std::int32_t id = 0;   ///< 0 = the host's choice
    std::string parameter; ///< that it edits, as written; empty = none
    std::int32_t flags = 0;
    std::string displayed; ///< parameter whose value is shown while dragging; empty = the same

    bool operator==(const PlanHotspot&) const = default;
};

/// A picture of the part's, by its number or file name, from its lower left corner.
struct PlanPicture {
    std::string picture;
    Host::Coordinate position;
    double width = 0.0;  ///< [m]
    double height = 0.0; ///< below 0 where it is mirrored
    double angle = 0.0;  ///< of its width [degrees]

    bool operator==(const PlanPicture&) const = default;
};

/// The part's own model seen from above (code 3) or from a side, turned by `angle`.
struct PlanProjection {
    std::int32_t code = 3;
    double angle = 0.0; ///< [degrees]
    std::int32_t method = 1;
    Host::Coordinate position;
    double scaleX = 1.0;
    double scaleY = 1.0;   ///< below 0 where the script's frame is mirrored
    double rotation = 0.0; ///< of the script's frame [degrees]
    PlanLook look;

    bool operator==(const PlanProjection&) const = default;
};

/// The part's binary symbol: fragment number, 0 = all, in the script's frame.
struct PlanFragment {
    std::int32_t number = 0;
    bool useCurrent = false;
    Host::Coordinate position;
    double scaleX = 1.0;
    double scaleY = 1.0;   ///< below 0 where it is mirrored
    double rotation = 0.0; ///< [degrees]

    bool operator==(const PlanFragment&) const = default;
};

using PlanShape = std::variant<PlanLine, PlanArc, PlanPolygon, PlanText, PlanHotspot, PlanPicture,
                               PlanProjection, PlanFragment>;

struct PlanSymbolDrawing {
    std::vector<PlanShape> shapes; ///< in their order

    bool operator==(const PlanSymbolDrawing&) const = default;
};

} // namespace Merivane::Workbench
