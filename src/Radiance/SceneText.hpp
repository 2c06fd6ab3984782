#pragma once

#include <string>
#include <string_view>

#include "Simulation/Scene.hpp"

namespace Merivane::Radiance {

/// A name that Radiance takes: every byte that is no ASCII letter or digit becomes "_"; an empty
/// text becomes "x". Not unique: a material's index stands in front of it.
std::string SanitizeName(std::string_view text);

/// The file `materials.rad`: one definition a material (`plastic` without gloss or `glass`), two
/// for a glass with reflectances of its own (`BRTDfunc`, the second with the suffix "_ext").
/// No sky, sun or ground.
std::string MaterialsText(const Simulation::Scene& scene);

/// The file `geometry.rad`: one polygon a surface [m]. A surface with fewer than 3 vertices or
/// without a valid material is left out; the polygons' names count it all the same.
std::string GeometryText(const Simulation::Scene& scene);

/// The file `sensors.pts`: one line of six numbers, position [m] and direction, for each
/// calculation point of every plane, in plane order and `ActivePoints` order.
std::string SensorsText(const Simulation::Scene& scene);

/// The file `points.pts`: one line of six numbers for each loose point.
std::string PointsText(const Simulation::Scene& scene);

} // namespace Merivane::Radiance
