#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "Simulation/CalculationGrid.hpp"
#include "Simulation/ContourRecords.hpp"
#include "Simulation/SimulationRecords.hpp"
#include "Simulation/Study/LightingStudy.hpp"
#include "Simulation/Study/StudyScene.hpp"
#include "Simulation/Study/ZoneAnalysis.hpp"

namespace Merivane::Simulation {

/// The whole result of a Zone, as drawings of it need it.
struct ZoneDrawing {
    StudyZone zone;
    ReferenceStandard standard = ReferenceStandard::Brazilian;
    ZoneAnalysis analysis;
    CalculationGrid grid;              ///< of the plane that is drawn
    std::vector<double> field;         ///< whole grid [lux]; NaN where no point is
    std::vector<IsoCurve> curves;      ///< level by level
    std::vector<ColorBand> bands;      ///< ascending
    std::vector<IsoCurve> taskOutline; ///< limit of the task area; none in a narrow Zone
    std::string engine;                ///< named beside the points; may be empty
    std::string planeName;             ///< of a plane that is not the work plane; else empty
    bool vertical = false;             ///< a vertical plane: "Ev" for "Em"
};

/// Draws the curves, bands and task limit of the study's Zone at index `zone` from the values of
/// its work plane. `result` must be that of `built.scene`, `analysis` that of the Zone.
ZoneDrawing BuildZoneDrawing(const LightingStudy& study, const StudyScene& built,
                             const SimulationResult& result, std::size_t zone,
                             const ZoneAnalysis& analysis);

} // namespace Merivane::Simulation
