#include "Workbench/Display/ViewBody.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdlib>

#include "Workbench/Bodies/FacedBody.hpp"

namespace Merivane::Workbench {

namespace {

using Host::Coordinate;
using Host::Coordinate3D;

constexpr double NoArea = 1e-12;        // [m2]
constexpr double NearlyStraight = 0.94; // cosine of about 20 degrees

std::size_t At(std::int32_t index) {
    return static_cast<std::size_t>(index);
}

// Newell: twice the area along the normal.
Coordinate3D AreaVector(const std::vector<Coordinate3D>& vertices,
                        const std::vector<std::int32_t>& contour) {
    Coordinate3D sum;
    for (std::size_t i = 0; i < contour.size(); ++i) {
        const Coordinate3D& a = vertices[At(contour[i])];
        const Coordinate3D& b = vertices[At(contour[(i + 1) % contour.size()])];
        sum.x += (a.y - b.y) * (a.z + b.z);
        sum.y += (a.z - b.z) * (a.x + b.x);
        sum.z += (a.x - b.x) * (a.y + b.y);
    }
    return sum;
}

// The contours of a face by the vertices where its edges begin.
ViewFace MakeFace(const Host::Body& body, const Host::BodyFace& face) {
    ViewFace made;
    made.surface = face.surface;
    made.contours.emplace_back();
    for (const std::int32_t signedEdge : face.edges) {
        if (signedEdge == 0) {
            made.contours.emplace_back();
            continue;
        }
        const Host::BodyEdge& edge = body.edges[At(std::abs(signedEdge) - 1)];
        made.contours.back().push_back((signedEdge > 0 ? edge.from : edge.to) - 1);
        made.edges.push_back(std::abs(signedEdge) - 1);
    }
    return made;
}

void TieEdges(ViewBody& body) {
    body.closed = true;
    for (std::size_t f = 0; f < body.faces.size(); ++f) {
        for (const std::int32_t edge : body.faces[f].edges) {
            std::array<std::int32_t, 2>& faces = body.edges[At(edge)].faces;
            faces[faces[0] < 0 ? 0 : 1] = static_cast<std::int32_t>(f);
        }
    }
    for (const ViewEdge& edge : body.edges) {
        body.closed = body.closed && edge.faces[1] >= 0;
    }
}

} // namespace

ViewFrame FrameFromAbove() {
    return UnmovedBody;
}

ViewFrame FrameAcrossLine(const Coordinate& begin, const Coordinate& end) {
    const double length = std::hypot(end.x - begin.x, end.y - begin.y);
    const double x = (end.x - begin.x) / length;
    const double y = (end.y - begin.y) / length;
    // The viewer stands to the right of the line, where z grows.
    return {x, y,  0, -x * begin.x - y * begin.y, //
            0, 0,  1, 0,                          //
            y, -x, 0, -y * begin.x + x * begin.y};
}

ViewFrame FrameFromAround(double azimuth, double elevation) {
    const double cosine = std::cos(azimuth);
    const double sine = std::sin(azimuth);
    const double up = std::sin(elevation);
    const double along = std::cos(elevation);
    return {-sine,          cosine,       0,     0, //
            -up * cosine,   -up * sine,   along, 0, //
            along * cosine, along * sine, up,    0};
}

ViewBody MakeViewBody(const Host::Body& body, const ViewFrame& frame) {
    ViewBody made;
    for (const Coordinate3D& vertex : body.vertices) {
        made.vertices.push_back(TransformPlace(frame, TransformPlace(body.transform, vertex)));
    }
    for (const Host::BodyEdge& edge : body.edges) {
        made.edges.push_back({edge.from - 1, edge.to - 1, {-1, -1}});
    }
    for (const Host::BodyFace& face : body.faces) {
        ViewFace view = MakeFace(body, face);
        const Coordinate3D area = AreaVector(made.vertices, view.contours.front());
        const double length = std::sqrt(Dot(area, area));
        if (length > NoArea) {
            view.normal = {area.x / length, area.y / length, area.z / length};
            made.faces.push_back(std::move(view));
        }
    }
    TieEdges(made);
    return made;
}

double Dot(const Coordinate3D& a, const Coordinate3D& b) {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

bool IsSharp(const ViewBody& body, const ViewEdge& edge) {
    return edge.faces[0] < 0 || edge.faces[1] < 0 ||
           Dot(body.faces[At(edge.faces[0])].normal, body.faces[At(edge.faces[1])].normal) <
               NearlyStraight;
}

std::vector<std::vector<Coordinate>> FlatRings(const ViewBody& body, const ViewFace& face) {
    std::vector<std::vector<Coordinate>> rings;
    for (const std::vector<std::int32_t>& contour : face.contours) {
        std::vector<Coordinate>& ring = rings.emplace_back();
        for (const std::int32_t vertex : contour) {
            ring.push_back({body.vertices[At(vertex)].x, body.vertices[At(vertex)].y});
        }
    }
    return rings;
}

bool IsInside(const std::vector<std::vector<Coordinate>>& rings, const Coordinate& place) {
    bool inside = false;
    for (const std::vector<Coordinate>& ring : rings) {
        for (std::size_t i = 0; i < ring.size(); ++i) {
            const Coordinate& a = ring[i];
            const Coordinate& b = ring[(i + 1) % ring.size()];
            if ((a.y > place.y) != (b.y > place.y) &&
                place.x < a.x + (place.y - a.y) * (b.x - a.x) / (b.y - a.y)) {
                inside = !inside;
            }
        }
    }
    return inside;
}

} // namespace Merivane::Workbench
