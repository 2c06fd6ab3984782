#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "Host/Types.hpp"

/// The 3D model of elements. Defined by whichever host is linked; nothing throws. Called on the
/// main thread only.
namespace Merivane::Host {

/// Faces of a body whose surface only a library part's script defines are numbered from here up.
inline constexpr std::int32_t FirstScriptSurface = 1'000'000;

/// An edge of a body, from one of its vertices to another, both counted from 1.
struct BodyEdge {
    std::int32_t from = 0;
    std::int32_t to = 0;

    bool operator==(const BodyEdge&) const = default;
};

/// A face of a body. `edges` are numbers of edges counted from 1, walked forwards, or backwards
/// where negative; a 0 ends a contour, and what follows is a hole.
struct BodyFace {
    std::vector<std::int32_t> edges;
    std::int32_t surface = -1; ///< attribute number, from `FirstScriptSurface` up one of the body's
                               ///< own, -1 for none

    bool operator==(const BodyFace&) const = default;
};

/// One body of an element, in its own frame.
struct Body {
    std::vector<Coordinate3D> vertices; ///< [m], before `transform`
    std::vector<BodyEdge> edges;
    std::vector<BodyFace> faces; ///< counter-clockwise from outside
    /// To the project's frame: x' = t[0] x + t[1] y + t[2] z + t[3], and so on.
    std::array<double, 12> transform = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0};

    bool operator==(const Body&) const = default;
};

/// A surface as the model shows it.
struct ModelSurface {
    std::string name; ///< UTF-8
    Colour colour;
    double diffuse = 1.0;      ///< [0..1]
    double transparency = 0.0; ///< [0..1]

    bool operator==(const ModelSurface&) const = default;
};

/// The bodies of one element, whatever the 3D window shows. Columns, beams, curtain walls, stairs
/// and railings have none: their parts have (`ListParts`). BadId; HiddenLayer, LockedLayer; NoBody
/// for a type without one.
ErrorCode GetBodies(const Guid& guid, std::vector<Body>& bodies);

/// A source of light that an object's or lamp's script marks, in the project's frame.
struct ModelLight {
    Coordinate3D position;  ///< [m]
    Coordinate3D direction; ///< where a host would shine it: the script's local +x, length 1
    Colour colour;
    bool shadow = true;

    bool operator==(const ModelLight&) const = default;
};

/// The sources of light of an element, none for one whose script marks none. Codes as for
/// `GetBodies`.
ErrorCode GetLights(const Guid& guid, std::vector<ModelLight>& lights);

/// A surface that a script defines, by a number from `FirstScriptSurface` up that `GetBodies` gave
/// in this session. BadIndex.
ErrorCode GetScriptSurface(std::int32_t surface, ModelSurface& model);

} // namespace Merivane::Host
