#pragma once

#include <vector>

#include "Simulation/Geometry.hpp"
#include "Simulation/Scene.hpp"

namespace Merivane::Simulation {

/// Newell's normal of a polygon in space: it looks to where the vertices turn counter-clockwise and
/// is twice the area long [m2]. 0 for fewer than 3 vertices.
Point3D NewellNormal(const std::vector<Point3D>& vertices);

/// The one reflectance that stands for the three of an opaque material [0..1], by Radiance's
/// weights.
double GreyReflectance(const SceneMaterial& material);

} // namespace Merivane::Simulation
