#include "Simulation/Study/ZoneDrawing.hpp"

#include <utility>

#include "Simulation/ColorBands.hpp"
#include "Simulation/GridField.hpp"
#include "Simulation/Isolines.hpp"
#include "Simulation/TaskOutline.hpp"

namespace Merivane::Simulation {

ZoneDrawing BuildZoneDrawing(const LightingStudy& study, const StudyScene& built,
                             const SimulationResult& result, std::size_t zone,
                             const ZoneAnalysis& analysis) {
    const std::size_t plane = WorkPlaneOf(built, zone);
    ZoneDrawing drawing;
    drawing.zone = study.zones[zone];
    drawing.standard = study.standard;
    drawing.analysis = analysis;
    drawing.grid = built.scene.sensorPlanes[plane].grid;
    GridField field = MakeGridField(drawing.grid, result.zones[plane].illuminance);
    drawing.curves = ExtractIsolines(field, study.levels);
    drawing.bands = BuildBands(field, study.levels);
    if (!drawing.grid.narrow) {
        drawing.taskOutline = BuildTaskOutline(drawing.zone.outline, drawing.zone.grid.borderBand);
    }
    drawing.field = std::move(field.values);
    return drawing;
}

} // namespace Merivane::Simulation
