#include "Workbench/Bodies/SolidBodies.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <iterator>
#include <numbers>
#include <utility>

#include "Workbench/Bodies/EarClipping.hpp"
#include "Workbench/Bodies/PolygonRings.hpp"

namespace Merivane::Workbench {

namespace {

using Host::Coordinate;
using Host::Coordinate3D;

/// Lengths up to this enclose nothing [m].
constexpr double NoLength = 1e-9;

/// A plane z = level + slopeX x + slopeY y.
struct Plane {
    double level = 0.0;
    double slopeX = 0.0;
    double slopeY = 0.0;

    double At(Coordinate place) const { return level + slopeX * place.x + slopeY * place.y; }
};

struct ExtrusionSurfaces {
    Host::AttributeIndex top;
    Host::AttributeIndex bottom;
    Host::AttributeIndex edge;
};

/// The body over a polygon from a plane up to another that lies `height` above it.
FacedBody Extrude(const Host::Polygon& polygon, const Plane& bottom, double height,
                  const ExtrusionSurfaces& surfaces) {
    const std::vector<PlanRing> rings = PolygonRings(polygon);
    FacedBody body;
    if (rings.empty() || !(height > NoLength)) {
        return body;
    }
    ContouredFace upper{{}, FaceSurface(surfaces.top)};
    ContouredFace lower{{}, FaceSurface(surfaces.bottom)};
    std::vector<ContouredFace> sides;
    for (const PlanRing& ring : rings) {
        const auto first = static_cast<std::int32_t>(body.vertices.size());
        const auto count = static_cast<std::int32_t>(ring.size());
        std::vector<std::int32_t> contour;
        for (std::int32_t i = 0; i < count; ++i) {
            const Coordinate place = ring[static_cast<std::size_t>(i)];
            const double low = bottom.At(place);
            body.vertices.push_back({place.x, place.y, low});
            body.vertices.push_back({place.x, place.y, low + height});
            const std::int32_t here = first + 2 * i;
            const std::int32_t next = first + 2 * ((i + 1) % count);
            contour.push_back(here);
            sides.push_back({{{here, next, next + 1, here + 1}}, FaceSurface(surfaces.edge)});
        }
        lower.contours.emplace_back(contour.rbegin(), contour.rend());
        for (std::int32_t& vertex : contour) {
            ++vertex;
        }
        upper.contours.push_back(std::move(contour));
    }
    body.faces.push_back(std::move(upper));
    body.faces.push_back(std::move(lower));
    std::move(sides.begin(), sides.end(), std::back_inserter(body.faces));
    return body;
}

Coordinate3D Scaled(const Coordinate3D& vector, double factor) {
    return {vector.x * factor, vector.y * factor, vector.z * factor};
}

Coordinate3D Sum(const Coordinate3D& a, const Coordinate3D& b) {
    return {a.x + b.x, a.y + b.y, a.z + b.z};
}

Coordinate3D CrossProduct(const Coordinate3D& a, const Coordinate3D& b) {
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

double Length(const Coordinate3D& vector) {
    return std::sqrt(vector.x * vector.x + vector.y * vector.y + vector.z * vector.z);
}

} // namespace

FacedBody BuildSlabBody(const SlabGeometry& slab) {
    return Extrude(slab.polygon, {slab.top - slab.thickness, 0.0, 0.0}, slab.thickness,
                   {slab.topSurface, slab.bottomSurface, slab.edgeSurface});
}

FacedBody BuildPrismBody(const PrismGeometry& prism) {
    return Extrude(prism.polygon, {prism.bottom, 0.0, 0.0}, prism.height,
                   {prism.surface, prism.surface, prism.surface});
}

FacedBody BuildRoofBody(const RoofGeometry& roof) {
    const Coordinate line{roof.pivotEnd.x - roof.pivotBegin.x, roof.pivotEnd.y - roof.pivotBegin.y};
    const double length = std::hypot(line.x, line.y);
    if (!(roof.slope >= 0.0 && roof.slope < std::numbers::pi / 2.0)) {
        return {};
    }
    Plane underside{roof.level, 0.0, 0.0};
    if (roof.slope > 0.0) {
        if (!(length > NoLength)) {
            return {};
        }
        const double rise = std::tan(roof.slope);
        underside.slopeX = -line.y / length * rise;
        underside.slopeY = line.x / length * rise;
        underside.level -=
            underside.slopeX * roof.pivotBegin.x + underside.slopeY * roof.pivotBegin.y;
    }
    return Extrude(roof.polygon, underside, roof.thickness,
                   {roof.topSurface, roof.bottomSurface, roof.edgeSurface});
}

FacedBody BuildBarBody(const BarGeometry& bar) {
    const Coordinate3D line{bar.end.x - bar.begin.x, bar.end.y - bar.begin.y,
                            bar.end.z - bar.begin.z};
    const double length = Length(line);
    if (!(length > NoLength && bar.width > NoLength && bar.height > NoLength)) {
        return {};
    }
    const Coordinate3D along = Scaled(line, 1.0 / length);
    Coordinate3D side = CrossProduct({0.0, 0.0, 1.0}, along);
    side = Length(side) > NoLength ? Scaled(side, 1.0 / Length(side)) : Coordinate3D{1.0, 0.0, 0.0};
    const Coordinate3D down = CrossProduct(side, along);
    FacedBody body;
    for (const Coordinate3D& end : {bar.begin, bar.end}) {
        const Coordinate3D left = Sum(end, Scaled(side, bar.width / 2.0));
        const Coordinate3D right = Sum(end, Scaled(side, -bar.width / 2.0));
        const Coordinate3D drop = Scaled(down, bar.height);
        // Left top, right top, right bottom, left bottom, looking along the line.
        body.vertices.insert(body.vertices.end(), {left, right, Sum(right, drop), Sum(left, drop)});
    }
    const std::int32_t surface = FaceSurface(bar.surface);
    for (const std::vector<std::int32_t>& contour : std::vector<std::vector<std::int32_t>>{
             {0, 1, 5, 4}, {1, 2, 6, 5}, {2, 3, 7, 6}, {3, 0, 4, 7}, {3, 2, 1, 0}, {4, 5, 6, 7}}) {
        body.faces.push_back({{contour}, surface});
    }
    return body;
}

FacedBody BuildMeshBody(const MeshGeometry& mesh) {
    std::vector<Coordinate3D> outline = mesh.outline;
    const auto ringOf = [](const std::vector<Coordinate3D>& places) {
        PlanRing ring;
        for (const Coordinate3D& place : places) {
            ring.push_back({place.x, place.y});
        }
        return ring;
    };
    if (SignedArea(ringOf(outline)) < 0.0) {
        std::reverse(outline.begin(), outline.end());
    }
    const PlanRing ring = ringOf(outline);
    FacedBody body;
    if (!(SignedArea(ring) > 0.0)) {
        return body;
    }
    const auto count = static_cast<std::int32_t>(outline.size());
    std::vector<std::int32_t> bottom;
    for (std::int32_t i = 0; i < count; ++i) {
        const Coordinate3D& place = outline[static_cast<std::size_t>(i)];
        body.vertices.push_back({place.x, place.y, mesh.bottom});
        body.vertices.push_back(place);
        bottom.insert(bottom.begin(), 2 * i);
    }
    for (const auto& [a, b, c] : ClipEars(ring)) {
        body.faces.push_back({{{2 * a + 1, 2 * b + 1, 2 * c + 1}}, FaceSurface(mesh.topSurface)});
    }
    body.faces.push_back({{bottom}, FaceSurface(mesh.edgeSurface)});
    for (std::int32_t i = 0; i < count; ++i) {
        const std::int32_t here = 2 * i;
        const std::int32_t next = 2 * ((i + 1) % count);
        body.faces.push_back({{{here, next, next + 1, here + 1}}, FaceSurface(mesh.edgeSurface)});
    }
    return body;
}

} // namespace Merivane::Workbench
