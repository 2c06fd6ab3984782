#pragma once

#include <vector>

#include "Simulation/CalculationGrid.hpp"
#include "Simulation/Geometry.hpp"

namespace Merivane::Simulation {

/// What `NodeDistances` gives for a node outside the polygon.
inline constexpr double OutsideNode = -1.0;

/// Distance of every node of `lattice` to the boundary of `polygon` [m], columns x rows, index
/// j * columns + i; `OutsideNode` where the node is not inside. Of the lattice only origin, steps
/// and counts are read.
///
/// Each value is bit for bit what `IsInsidePolygon` and `DistanceToBoundary` say of the node, but
/// the cost hardly grows with the number of edges.
std::vector<double> NodeDistances(const Polygon2D& polygon, const CalculationGrid& lattice);

} // namespace Merivane::Simulation
