#include "Workbench/Display/PaintedModel.hpp"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "Workbench/Display/PainterOrder.hpp"

namespace Merivane::Workbench {

namespace {

using Host::Coordinate;
using Host::Coordinate3D;

constexpr double EdgeOn = 1e-6;    // a face whose normal's z is less shows no area
constexpr double FillBleed = 0.05; // under the borders, against seams between faces [mm]
constexpr Drawing::Color EdgeColor = {0.22, 0.22, 0.22};
// Towards the light: from above, a little from the viewer's left.
constexpr Coordinate3D Light = {-0.42, 0.62, 0.66};

// The faces of a model, and the colours that they name as their looks.
struct Paintings {
    std::vector<PaintedFace> faces;
    std::vector<Drawing::Color> colors;
};

const Coordinate3D& VertexAt(const ViewBody& body, std::int32_t index) {
    return body.vertices[static_cast<std::size_t>(index)];
}

Coordinate3D Between(const Coordinate3D& a, const Coordinate3D& b, double z) {
    const double share = (z - a.z) / (b.z - a.z);
    return {a.x + share * (b.x - a.x), a.y + share * (b.y - a.y), z};
}

// A ring without what is nearer than `nearest` (Sutherland and Hodgman).
std::vector<Coordinate> ClipRing(const ViewBody& body, const std::vector<std::int32_t>& contour,
                                 double nearest) {
    std::vector<Coordinate> ring;
    for (std::size_t i = 0; i < contour.size(); ++i) {
        const Coordinate3D& a = VertexAt(body, contour[i]);
        const Coordinate3D& b = VertexAt(body, contour[(i + 1) % contour.size()]);
        if (a.z <= nearest) {
            ring.push_back({a.x, a.y});
        }
        if ((a.z <= nearest) != (b.z <= nearest)) {
            const Coordinate3D place = Between(a, b, nearest);
            ring.push_back({place.x, place.y});
        }
    }
    return ring;
}

std::vector<std::pair<Coordinate, Coordinate>> SharpEdges(const ViewBody& body,
                                                          const ViewFace& face, double nearest) {
    std::vector<std::pair<Coordinate, Coordinate>> edges;
    for (const std::int32_t index : face.edges) {
        const ViewEdge& edge = body.edges[static_cast<std::size_t>(index)];
        Coordinate3D a = VertexAt(body, edge.from);
        Coordinate3D b = VertexAt(body, edge.to);
        if (!IsSharp(body, edge) || std::min(a.z, b.z) >= nearest) {
            continue; // an edge in the cut itself is drawn with the cut
        }
        if (a.z > nearest) {
            a = Between(a, b, nearest);
        } else if (b.z > nearest) {
            b = Between(a, b, nearest);
        }
        edges.push_back({{a.x, a.y}, {b.x, b.y}});
    }
    return edges;
}

Drawing::Color FaceColor(const Host::ModelSurface& surface, const Coordinate3D& normal,
                         const PaintStyle& style) {
    const double light = style.shaded ? 0.66 + 0.34 * std::max(Dot(normal, Light), 0.0) : 1.0;
    const auto channel = [&](double value) {
        return std::clamp(style.white + (1.0 - style.white) * value * light, 0.0, 1.0);
    };
    return {channel(surface.colour.red), channel(surface.colour.green),
            channel(surface.colour.blue), 1.0 - 0.75 * std::clamp(surface.transparency, 0.0, 1.0)};
}

void AddFaces(const Project& project, const ViewBody& body, const PaintStyle& style,
              Paintings& paintings) {
    for (const ViewFace& face : body.faces) {
        const bool faces = body.closed ? face.normal.z > EdgeOn : std::abs(face.normal.z) > EdgeOn;
        if (!faces) {
            continue;
        }
        PaintedFace painted;
        for (const std::vector<std::int32_t>& contour : face.contours) {
            std::vector<Coordinate> ring = ClipRing(body, contour, style.nearest);
            if (ring.size() > 2) {
                painted.rings.push_back(std::move(ring));
            }
        }
        if (painted.rings.empty()) {
            continue;
        }
        painted.normal = face.normal;
        painted.offset = Dot(face.normal, VertexAt(body, face.contours.front().front()));
        Coordinate3D towards = face.normal;
        if (towards.z < 0.0) { // the inside of an open body
            towards = {-towards.x, -towards.y, -towards.z};
        }
        painted.edges = SharpEdges(body, face, style.nearest);
        painted.look = paintings.colors.size();
        paintings.faces.push_back(std::move(painted));
        paintings.colors.push_back(FaceColor(SurfaceOfFace(project, face), towards, style));
    }
}

} // namespace

void PaintModel(const Project& project, const std::vector<ShownElement>& shown,
                const PaintStyle& style, PaperDrawing& drawing) {
    Paintings paintings;
    for (const ShownElement& element : shown) {
        for (const ViewBody& body : element.bodies) {
            if (LowestDepth(body) < style.nearest && HighestDepth(body) > style.farthest) {
                AddFaces(project, body, style, paintings);
            }
        }
    }
    for (const PaintedFace& face : PaintOrder(std::move(paintings.faces))) {
        Drawing::Area area;
        for (const std::vector<Coordinate>& ring : face.rings) {
            area.rings.push_back(PaperPoints(drawing, ring));
        }
        area.fill = paintings.colors[face.look];
        area.bleed = area.fill.alpha < 1.0 ? 0.0 : FillBleed;
        drawing.below.emplace_back(std::move(area));
        for (const auto& [from, to] : face.edges) {
            drawing.below.emplace_back(
                Drawing::Polyline{{PaperPoint(drawing, from), PaperPoint(drawing, to)},
                                  false,
                                  {style.edgeWidth, EdgeColor, {}}});
        }
    }
}

} // namespace Merivane::Workbench
