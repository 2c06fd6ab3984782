#pragma once

#include <vector>

#include "Host/Elements.hpp"

namespace Merivane::Archicad {

/// An edge of a placed part's outline, from one end to the other.
struct PreviewEdge {
    Host::Coordinate3D from; ///< [m]
    Host::Coordinate3D to;   ///< [m]

    bool operator==(const PreviewEdge&) const = default;
};

/// What a dialog shows of a placed part, in the part's own coordinates: those of its scripts, with
/// the origin at its place, neither turned nor mirrored.
struct ObjectPreview {
    Host::Coordinate3D lowest;      ///< of the box around all its bodies [m]
    Host::Coordinate3D highest;     ///< [m]
    bool geometryRead = false;      ///< false: nothing could be read, and all else is empty
    std::vector<PreviewEdge> edges; ///< where it bends or ends; not those inside flat faces

    bool operator==(const ObjectPreview&) const = default;
};

/// The bodies of an Object or Lamp as they are placed. `geometryRead` stays false for an element of
/// another type, where the host gives no bodies (a hidden layer, no 3D), and for a part whose
/// bodies have no vertex.
ObjectPreview BuildObjectPreview(const Host::Element& element);

} // namespace Merivane::Archicad
