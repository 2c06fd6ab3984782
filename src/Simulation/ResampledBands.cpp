#include "Simulation/ResampledBands.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "Simulation/ColorBands.hpp"
#include "Simulation/GridField.hpp"
#include "Simulation/PolygonGeometry.hpp"

namespace Merivane::Simulation {

namespace {

CalculationGrid BuildFineGrid(const CalculationGrid& grid, const Polygon2D& polygon,
                              double minimumSpacing) {
    const Bounds2D bounds = OuterBounds(polygon);
    const double area =
        (bounds.maximum.x - bounds.minimum.x) * (bounds.maximum.y - bounds.minimum.y);
    GridSettings settings;
    settings.workPlaneHeight = 0.0;
    settings.borderBand = 0.0;
    settings.wallOffset = 0.005;
    settings.spacing = std::max(std::sqrt(area / 20000.0), minimumSpacing);
    return BuildCalculationGrid(polygon, grid.z, settings);
}

} // namespace

std::vector<ColorBand> ResampleBands(const CalculationGrid& grid, const std::vector<double>& values,
                                     const Polygon2D& polygon, const LevelList& levels,
                                     double minimumSpacing) {
    const std::size_t count = ActiveNodeCount(grid);
    if (count == 0 || values.size() != count) {
        return {};
    }
    const CalculationGrid fine = BuildFineGrid(grid, polygon, minimumSpacing);
    const std::vector<double> field = MakeGridField(grid, values).values;
    std::vector<double> fineValues;
    for (const Point2D& point : ActivePoints(fine)) {
        fineValues.push_back(SampleGrid(grid, field, point));
    }
    if (fineValues.empty()) {
        return {};
    }
    return BuildBands(MakeGridField(fine, fineValues), levels);
}

} // namespace Merivane::Simulation
