#pragma once

#include <string>
#include <vector>

#include "Archicad/ModelReadingZones.hpp"
#include "Host/Types.hpp"
#include "Simulation/Reflectances.hpp"
#include "Simulation/Scene.hpp"

namespace Merivane::Archicad {

/// Reads what stands around the Zones: the faces of every visible element whose box comes nearer
/// than 1 m to them in plan, 0.6 m below and 1.5 m above. Elements on layers of this add-on's own
/// results and `excludedGuids` are left out.
///
/// Appends the faces to `scene.surfaces`, each with the index of its record in `reflectances`,
/// whose areas grow by what was met. A level face without surface is taken for floor below the
/// lowest Zone's floor plus `ceilingMargin` [m], for ceiling from there up. Lines for the user are
/// appended to `log`.
void CollectGeometry(const std::vector<ZoneRecord>& zones,
                     const std::vector<Host::Guid>& excludedGuids, double ceilingMargin,
                     Simulation::Scene& scene,
                     std::vector<Simulation::SurfaceReflectance>& reflectances,
                     std::vector<std::string>& log);

} // namespace Merivane::Archicad
