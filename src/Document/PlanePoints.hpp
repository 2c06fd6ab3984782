#pragma once

#include <vector>

#include "Simulation/Geometry.hpp"
#include "Simulation/Scene.hpp"

namespace Merivane::Document {

/// Places in the project of a plane's calculation points [m], in `ActivePoints` order.
std::vector<Simulation::Point3D> PlanePoints(const Simulation::SensorPlane& plane);

} // namespace Merivane::Document
