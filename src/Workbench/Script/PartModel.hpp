#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "Host/Model3D.hpp"
#include "Host/Types.hpp"
#include "Workbench/Bodies/FacedBody.hpp"

/// What a model script builds, in the part's own frame [m]: every transformation of the script is
/// worked in. Plain records.
namespace Merivane::Workbench {

/// From a script's frame to the part's: x' = t[0] x + t[1] y + t[2] z + t[3], and so on.
using ScriptFrame = std::array<double, 12>;

/// A single line in space.
struct PartWire {
    Host::Coordinate3D begin;
    Host::Coordinate3D end;
    std::int32_t pen = 1;

    bool operator==(const PartWire&) const = default;
};

/// A source of light that a script marks.
struct PartLight {
    Host::Coordinate3D position;
    Host::Coordinate3D direction;                             ///< of the local +x axis, length 1
    ScriptFrame frame = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0}; ///< in force at the statement
    Host::Colour colour;
    bool shadow = true;
    double radius = 0.0;
    double coneInner = 0.0; ///< [degrees]
    double coneOuter = 0.0;
    double angleFalloff = 0.0;
    double distanceBegin = 0.0;
    double distanceEnd = 0.0;
    double distanceFalloff = 0.0;

    bool operator==(const PartLight&) const = default;
};

struct PartHotspot {
    Host::Coordinate3D position;
    std::int32_t id = 0;
    std::string parameter; ///< as written; empty = none
    std::int32_t flags = 0;

    bool operator==(const PartHotspot&) const = default;
};

/// A text in space: its frame, and its height of capitals there [m].
struct PartText {
    std::string text;
    ScriptFrame frame = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0};
    double height = 0.0;

    bool operator==(const PartText&) const = default;
};

struct PartModel {
    /// Faces name an attribute's number, or `Host::FirstScriptSurface` plus the place in
    /// `surfaces`; -1 where the material is the pen's colour.
    std::vector<FacedBody> bodies;
    std::vector<Host::ModelSurface> surfaces; ///< that the scripts define
    std::vector<PartWire> wires;
    std::vector<PartLight> lights;
    std::vector<PartHotspot> hotspots;
    std::vector<PartText> texts;
};

} // namespace Merivane::Workbench
