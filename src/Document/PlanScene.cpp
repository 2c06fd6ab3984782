#include "Document/PlanScene.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <numbers>
#include <set>

#include "Photometry/OpeningCodes.hpp"
#include "Photometry/PhotometricQuantities.hpp"

namespace Merivane::Document {
namespace {

using Simulation::Point2D;
using Simulation::Point3D;
using Simulation::SceneLuminaire;

constexpr double LeastLength = 0.001; // m

// On the one line of a cut crossings come in pairs, whichever way the outline turns.
void SortAlongLine(std::vector<Point2D>& points) {
    if (points.empty()) {
        return;
    }
    const auto byX = [](const Point2D& a, const Point2D& b) { return a.x < b.x; };
    const auto byY = [](const Point2D& a, const Point2D& b) { return a.y < b.y; };
    const auto [left, right] = std::minmax_element(points.begin(), points.end(), byX);
    const auto [low, high] = std::minmax_element(points.begin(), points.end(), byY);
    if (right->x - left->x >= high->y - low->y) {
        std::sort(points.begin(), points.end(), byX);
    } else {
        std::sort(points.begin(), points.end(), byY);
    }
}

// Where the outline of a face passes the height `z`. A corner on that height belongs to the lower
// side, so that a face always gives an even number of crossings.
std::vector<Point2D> Crossings(const std::vector<Point3D>& vertices, double z) {
    std::vector<Point2D> crossings;
    for (std::size_t k = 0; k < vertices.size(); ++k) {
        const Point3D& a = vertices[k];
        const Point3D& b = vertices[(k + 1) % vertices.size()];
        if ((a.z > z) != (b.z > z)) {
            const double t = (z - a.z) / (b.z - a.z);
            crossings.push_back({a.x + t * (b.x - a.x), a.y + t * (b.y - a.y)});
        }
    }
    SortAlongLine(crossings);
    return crossings;
}

// Two faces of one wall without thickness give the same line: whole millimetres, the smaller end
// first.
std::array<std::int64_t, 5> LineKey(const PlanSegment& segment) {
    const auto millimetres = [](double metres) {
        return static_cast<std::int64_t>(std::llround(std::clamp(metres, -1e12, 1e12) * 1000.0));
    };
    std::array<std::int64_t, 2> a = {millimetres(segment.start.x), millimetres(segment.start.y)};
    std::array<std::int64_t, 2> b = {millimetres(segment.end.x), millimetres(segment.end.y)};
    if (b < a) {
        std::swap(a, b);
    }
    return {static_cast<std::int64_t>(segment.kind), a[0], a[1], b[0], b[1]};
}

Point2D Turned(Point2D place, double angle) {
    return {place.x * std::cos(angle) - place.y * std::sin(angle),
            place.x * std::sin(angle) + place.y * std::cos(angle)};
}

// A direction of the photometric frame as it lies in plan: aimed, mirrored and turned as the light
// source itself is.
Point2D PlanDirection(const SceneLuminaire& luminaire, Point2D direction) {
    constexpr double degree = std::numbers::pi / 180.0;
    const Photometry::LuminaireSettings& aim = luminaire.contract;
    Point2D place = Turned(direction, (aim.c0Rotation - aim.tiltDirection) * degree);
    place.x *= std::cos(aim.tiltAngle * degree);
    place = Turned(place, aim.tiltDirection * degree);
    if (luminaire.mirrored) {
        place.x = -place.x;
    }
    return Turned(place, luminaire.rotation);
}

// The opening of one piece, at the place of the first copy.
PlanLuminaire FirstCopy(const SceneLuminaire& luminaire) {
    std::string warning;
    const Photometry::IesFile file = Photometry::WithKnownOpening(luminaire.photometry, warning);
    const double unit = Photometry::UnitsToMetres(file.unitsType);
    PlanLuminaire opening;
    opening.round = file.width < 0.0 && file.length < 0.0;
    opening.length = std::abs(file.length) * unit;
    opening.width = std::abs(file.width) * unit;
    if (!opening.round) {
        double& longer = opening.length >= opening.width ? opening.length : opening.width;
        longer *= luminaire.lengthScale;
    }
    // A direction that points up or down has no angle in plan; then the other one tells it.
    const Point2D alongC0 = PlanDirection(luminaire, {1.0, 0.0});
    const Point2D alongC90 = PlanDirection(luminaire, {0.0, 1.0});
    const double shownC0 = std::hypot(alongC0.x, alongC0.y);
    const double shownC90 = std::hypot(alongC90.x, alongC90.y);
    opening.length *= shownC0;
    opening.width *= shownC90;
    opening.rotation =
        shownC0 > 1e-6 ? std::atan2(alongC0.y, alongC0.x) : std::atan2(-alongC90.x, alongC90.y);
    Point2D center{luminaire.contract.centerX, luminaire.contract.centerY};
    if (luminaire.mirrored) {
        center.x = -center.x;
    }
    center = Turned(center, luminaire.rotation);
    opening.center = {luminaire.x + center.x, luminaire.y + center.y};
    return opening;
}

} // namespace

std::vector<PlanSegment> CutSurfaces(const Simulation::Scene& scene, double z) {
    std::vector<PlanSegment> segments;
    std::set<std::array<std::int64_t, 5>> known;
    for (const Simulation::SceneSurface& surface : scene.surfaces) {
        const auto material = static_cast<std::size_t>(surface.materialIndex);
        if (surface.materialIndex < 0 || material >= scene.materials.size()) {
            continue;
        }
        const PlanSegmentKind kind =
            scene.materials[material].isGlass ? PlanSegmentKind::Glass : PlanSegmentKind::Wall;
        const std::vector<Point2D> crossings = Crossings(surface.vertices, z);
        for (std::size_t k = 1; k < crossings.size(); k += 2) {
            const PlanSegment segment{kind, crossings[k - 1], crossings[k]};
            const double length =
                std::hypot(segment.end.x - segment.start.x, segment.end.y - segment.start.y);
            if (length >= LeastLength && known.insert(LineKey(segment)).second) {
                segments.push_back(segment);
            }
        }
    }
    return segments;
}

std::vector<PlanLuminaire> CollectPlanLuminaires(const Simulation::Scene& scene) {
    std::vector<PlanLuminaire> openings;
    for (const SceneLuminaire& luminaire : scene.luminaires) {
        const PlanLuminaire first = FirstCopy(luminaire);
        for (std::int32_t j = 0; j < std::max(luminaire.arrayCountY, 1); ++j) {
            for (std::int32_t i = 0; i < std::max(luminaire.arrayCountX, 1); ++i) {
                PlanLuminaire copy = first;
                copy.center.x += i * luminaire.arrayStepX;
                copy.center.y += j * luminaire.arrayStepY;
                openings.push_back(copy);
            }
        }
    }
    return openings;
}

} // namespace Merivane::Document
