#pragma once

#include <string>

#include "Catalog/Json.hpp"
#include "Simulation/Study/ZoneAnalysis.hpp"

namespace Merivane::Document {

/// The glare of a Zone as results tell it (docs/cena.md). With `explained` each observer has its
/// rows, luminaire by luminaire; the analysis must hold them.
Catalog::JsonValue GlareJson(const Simulation::ZoneAnalysis& analysis,
                             const Simulation::Scene& scene, bool explained);

/// One entry of `zonas`: the activity, what it requires, the verification and the glare.
Catalog::JsonValue ZoneResultJson(const Simulation::StudyZone& zone,
                                  const Simulation::ZoneAnalysis& analysis,
                                  const Simulation::Scene& scene, bool explained);

} // namespace Merivane::Document
