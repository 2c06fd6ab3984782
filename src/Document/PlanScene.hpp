#pragma once

#include <vector>

#include "Document/ResultPlan.hpp"
#include "Simulation/Scene.hpp"

namespace Merivane::Document {

/// Cuts the surfaces of a scene by the horizontal plane at `z` [m] and gives the lines of the cut
/// in plan: glass for surfaces of a glass material, wall for every other. A surface that lies in
/// the plane, or only touches it, is not cut; lines under 1 mm are left out, and so is a line
/// that an earlier surface of the same kind has already given.
std::vector<PlanSegment> CutSurfaces(const Simulation::Scene& scene, double z);

/// The luminous openings of the scene's luminaires in plan, every copy of an array by itself, in
/// the order of the scene. Openings without an extent keep length and width 0.
std::vector<PlanLuminaire> CollectPlanLuminaires(const Simulation::Scene& scene);

} // namespace Merivane::Document
