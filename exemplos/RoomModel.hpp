#pragma once

#include <array>
#include <string>
#include <vector>

#include "Catalog/Json.hpp"

namespace Merivane::Examples {

using Point = std::array<double, 2>;  ///< x, y in plan [m]
using Vertex = std::array<double, 3>; ///< x, y, z [m]

/// A piece of a wall that is of another material: a door, a window. Measured along the wall from
/// its first end and from the floor [m].
struct Opening {
    std::string material;
    double from = 0.0;
    double to = 0.0;
    double bottom = 0.0;
    double top = 0.0;
    bool glazed = false; ///< a pane of two faces, the outer one looking out of the building
};

/// A wall seen from inside the room runs from its first end on the right to its second on the left,
/// as the edges of an outline do that is told counter-clockwise.
struct Wall {
    Point first = {};
    Point second = {};
    double height = 0.0; ///< from z = 0 [m]
    std::string material;
    std::vector<Opening> openings; ///< from the first end on, none over another
};

/// JSON of a point list: an array of arrays of numbers.
Catalog::JsonValue PointList(const std::vector<Point>& points);

/// JSON of an array of numbers.
Catalog::JsonValue NumberList(const std::vector<double>& numbers);

/// Surfaces of a scene document, in the order in which they are added. Every normal looks to where
/// the face is seen from.
class RoomModel {
public:
    void AddFace(const std::string& material, const std::vector<Vertex>& vertices,
                 bool exterior = false);

    /// Floor at z = 0 and ceiling of a room whose outline is told counter-clockwise.
    void AddFloorAndCeiling(const std::vector<Point>& outline, double height,
                            const std::string& floor, const std::string& ceiling);

    /// A wall around its openings, and the openings.
    void AddWall(const Wall& wall);

    /// A closed box, seen from outside.
    void AddBox(const std::string& material, Point low, Point high, double bottom, double top);

    /// A pane between two rooms over a line in plan, its two faces `thickness` apart; both look
    /// away from the pane. Each face carries the material.
    void AddPane(const std::string& material, Point first, Point second, double height,
                 double thickness);

    Catalog::JsonValue surfaces = Catalog::JsonValue::MakeArray();
};

} // namespace Merivane::Examples
