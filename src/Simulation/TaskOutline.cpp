#include "Simulation/TaskOutline.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <utility>

#include "Simulation/GridField.hpp"
#include "Simulation/Isolines.hpp"
#include "Simulation/NodeDistances.hpp"
#include "Simulation/PolygonGeometry.hpp"

namespace Merivane::Simulation {

namespace {

double OutlineSpacing(const Polygon2D& polygon) {
    const Bounds2D bounds = OuterBounds(polygon);
    const double area =
        (bounds.maximum.x - bounds.minimum.x) * (bounds.maximum.y - bounds.minimum.y);
    return std::max(std::sqrt(area / 250000.0), 0.01);
}

bool IsStraight(Point2D from, Point2D through, Point2D to) {
    const double ax = through.x - from.x;
    const double ay = through.y - from.y;
    const double bx = to.x - through.x;
    const double by = to.y - through.y;
    return std::abs(ax * by - ay * bx) <= 1e-9 * std::hypot(ax, ay) * std::hypot(bx, by);
}

void ThinStraightRuns(std::vector<Point2D>& points) {
    std::vector<Point2D> kept;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const bool atEnd = i == 0 || i + 1 == points.size();
        if (atEnd || !IsStraight(kept.back(), points[i], points[i + 1])) {
            kept.push_back(points[i]);
        }
    }
    points = std::move(kept);
}

} // namespace

std::vector<IsoCurve> BuildTaskOutline(const Polygon2D& polygon, double band) {
    if (polygon.outer.size() < 3 || !(band > 0.0)) {
        return {};
    }
    GridSettings settings;
    settings.workPlaneHeight = 0.0;
    settings.borderBand = 0.0;
    settings.wallOffset = 0.0;
    settings.spacing = OutlineSpacing(polygon);
    const CalculationGrid grid = BuildCalculationGrid(polygon, 0.0, settings);

    GridField field;
    field.grid = &grid;
    field.values = NodeDistances(polygon, grid);
    std::replace(field.values.begin(), field.values.end(), OutsideNode,
                 std::numeric_limits<double>::quiet_NaN());

    std::vector<IsoCurve> curves = ExtractIsolines(field, {band});
    for (IsoCurve& curve : curves) {
        ThinStraightRuns(curve.points);
    }
    return curves;
}

} // namespace Merivane::Simulation
