#include "Workbench/Script/ShapeLoft.hpp"

#include <algorithm>
#include <utility>

#include "Workbench/Script/ShapeVectors.hpp"

namespace Merivane::Workbench {

namespace {

/// Faces of less area are none [m2].
constexpr double NoArea = 1e-12;

} // namespace

void AddBand(ShapeSketch& sketch, const Loft& loft, const LoftSection& from,
             const LoftSection& to) {
    std::size_t begin = 0;
    for (const std::size_t end : loft.ringEnds) {
        for (std::size_t i = begin; i < end; ++i) {
            const std::size_t next = i + 1 < end ? i + 1 : begin;
            AddFace(sketch, {{from[i], from[next], to[next], to[i]}}, loft.edges[i].surface,
                    loft.edges[i].present);
        }
        begin = end;
    }
}

void AddCap(ShapeSketch& sketch, const Loft& loft, const LoftSection& section, std::int32_t surface,
            bool present, bool turned) {
    std::vector<std::vector<std::int32_t>> contours;
    Host::Coordinate3D area;
    std::size_t begin = 0;
    for (const std::size_t end : loft.ringEnds) {
        std::vector<std::int32_t> contour(section.begin() + static_cast<std::ptrdiff_t>(begin),
                                          section.begin() + static_cast<std::ptrdiff_t>(end));
        if (turned) {
            std::reverse(contour.begin(), contour.end());
        }
        area = Sum(area, DoubledNormal(sketch.body, contour));
        contours.push_back(std::move(contour));
        begin = end;
    }
    if (Length(area) > 2.0 * NoArea) {
        AddFace(sketch, std::move(contours), surface, present);
    }
}

LoftSection AddPeak(ShapeSketch& sketch, std::size_t count, const Host::Coordinate3D& place) {
    return LoftSection(count, AddVertex(sketch, place));
}

Loft RingLoft(std::size_t count, std::int32_t surface) {
    return {{count}, std::vector<LoftEdge>(count, LoftEdge{surface, true})};
}

std::string CheckLoftRoom(const ShapeSketch& sketch, std::size_t points, std::size_t bands) {
    constexpr std::size_t caps = 2;
    return CheckRoom(sketch, points * bands + caps, points * (bands + 1));
}

} // namespace Merivane::Workbench
