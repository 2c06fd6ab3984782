#include "Simulation/ColorBands.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <span>
#include <utility>

#include "Simulation/BandRings.hpp"
#include "Simulation/ContourMesh.hpp"
#include "Simulation/HoleOwners.hpp"
#include "Simulation/RingSimplification.hpp"

namespace Merivane::Simulation {

namespace {

/// A hole's owner is looked for this part of a step beside it.
constexpr double BesideHole = 1e-6;

/// What one band is made of before its holes are given to its polygons.
struct BandParts {
    std::vector<BandPolygon> polygons;
    std::vector<RingMeasure> measures; ///< of the outer rings
    std::vector<std::vector<Point2D>> holes;
};

std::vector<BandParts> CollectParts(ContourMesh mesh, std::size_t bandCount) {
    std::vector<BandParts> bands(bandCount);
    ForEachBandRing(std::move(mesh), [&](std::size_t k, std::vector<Point2D>& ring) {
        SimplifyRingInPlace(ring);
        if (ring.size() < 3) {
            return;
        }
        BandParts& band = bands[k];
        const RingMeasure measure = MeasureRing(ring);
        if (measure.area > 0) {
            band.polygons.emplace_back().outer.assign(ring.begin(), ring.end());
            band.measures.push_back(measure);
        } else if (measure.area < 0) {
            band.holes.emplace_back().assign(ring.begin(), ring.end());
        }
    });
    return bands;
}

/// A point of the band just beside a hole's first edge. Holes turn clockwise, so the band lies on
/// the left of their edges.
Point2D PointBeside(const std::vector<Point2D>& hole, double distance) {
    const Point2D a = hole[0];
    const Point2D b = hole[1];
    const double x = b.x - a.x;
    const double y = b.y - a.y;
    const double length = std::sqrt(x * x + y * y);
    return {(a.x + b.x) * 0.5 - y / length * distance, (a.y + b.y) * 0.5 + x / length * distance};
}

void PlaceHoles(BandParts& band, const CalculationGrid& grid) {
    const double distance = std::min(grid.stepX, grid.stepY) * BesideHole;
    std::vector<Point2D> beside;
    beside.reserve(band.holes.size());
    for (const auto& hole : band.holes) {
        beside.push_back(PointBeside(hole, distance));
    }
    std::vector<OuterRing> outers;
    outers.reserve(band.polygons.size());
    for (std::size_t p = 0; p < band.polygons.size(); ++p) {
        outers.push_back({band.polygons[p].outer, band.measures[p]});
    }
    const auto owners = FindOwners(beside, outers, grid.stepY);
    for (std::size_t h = 0; h < owners.size(); ++h) {
        if (owners[h] != NoOwner) {
            band.polygons[owners[h]].holes.push_back(std::move(band.holes[h]));
        }
    }
}

} // namespace

std::vector<ColorBand> BuildBands(const GridField& field, const LevelList& levels) {
    std::vector<ColorBand> result;
    if (!HasCells(field)) {
        return result;
    }
    std::vector<BandParts> bands =
        CollectParts(BuildContourMesh(field, levels, MeshBorder::Corners), levels.size() + 1);
    constexpr double infinity = std::numeric_limits<double>::infinity();
    for (std::size_t k = 0; k < bands.size(); ++k) {
        if (bands[k].polygons.empty()) {
            continue;
        }
        PlaceHoles(bands[k], *field.grid);
        result.push_back({k, k > 0 ? levels[k - 1] : -infinity,
                          k < levels.size() ? levels[k] : infinity, std::move(bands[k].polygons)});
    }
    return result;
}

} // namespace Merivane::Simulation
