#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "Workbench/Script/ScriptPolyline.hpp"
#include "Workbench/Script/ShapeInput.hpp"
#include "Workbench/Script/ShapeSketch.hpp"

/// Bodies that a profile leaves behind when it is drawn through space: prisms, pyramids, revolved
/// and swept ones are such.
namespace Merivane::Workbench {

/// One side of the profile, from its point to the next of the same ring.
struct LoftEdge {
    std::int32_t surface = -1;
    bool present = true;
};

/// The rings of a profile, one after the other. Every ring is taken as closed; of an open one the
/// last edge is not present.
struct Loft {
    std::vector<std::size_t> ringEnds; ///< behind each ring's last point
    std::vector<LoftEdge> edges;       ///< as many as points
};

/// The profile at one place: a vertex for each of its points. Points may share one.
using LoftSection = std::vector<std::int32_t>;

/// The faces between two sections. They look away from a profile that is counter-clockwise seen
/// from the second one.
void AddBand(ShapeSketch& sketch, const Loft& loft, const LoftSection& from, const LoftSection& to);

/// A section as a face, the first ring its outline; `turned` makes it look against the profile.
/// One without area is left out.
void AddCap(ShapeSketch& sketch, const Loft& loft, const LoftSection& section, std::int32_t surface,
            bool present, bool turned);

/// A section with vertices of its own, `place` giving where the profile's point i is.
template <typename Place>
LoftSection AddSection(ShapeSketch& sketch, std::size_t count, Place place) {
    LoftSection section;
    section.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        section.push_back(AddVertex(sketch, place(i)));
    }
    return section;
}

/// A section all of whose points are one vertex.
LoftSection AddPeak(ShapeSketch& sketch, std::size_t count, const Host::Coordinate3D& place);

/// A single ring of `count` points.
Loft RingLoft(std::size_t count, std::int32_t surface);

/// Whether there is room for `bands` bands of this loft and their vertices.
std::string CheckLoftRoom(const ShapeSketch& sketch, std::size_t points, std::size_t bands);

} // namespace Merivane::Workbench
