#pragma once

#include <string>
#include <vector>

#include "Simulation/Geometry.hpp"

namespace Merivane::Document {

/// The ring without vertices that repeat their neighbour, also the last that repeats the first.
std::vector<Simulation::Point2D> WithoutRepeats(const std::vector<Simulation::Point2D>& ring);

/// What makes a polygon no outline of a room.
enum class OutlineFault { None, NoArea, SelfCrossing, HoleCrossing, HoleOutside };

/// Where the first fault of an outline lies.
struct OutlineJudgement {
    OutlineFault fault = OutlineFault::None;
    int ring = -1;             ///< the hole concerned, -1 for the outer ring
    Simulation::Point2D place; ///< of the crossing, or the vertex that lies outside [m]
};

/// Judges an outline: every ring encloses an area, no two edges cross, every hole lies inside the
/// outer ring. Edges may touch; what overlaps by less than 1e-6 m touches. Time grows with the
/// square of the number of vertices.
OutlineJudgement JudgeOutline(const Simulation::Polygon2D& polygon);

} // namespace Merivane::Document
