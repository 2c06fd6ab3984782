#include "Document/SurfacePlane.hpp"

#include <algorithm>
#include <cmath>

namespace Merivane::Document {

namespace {

using Simulation::Point3D;

double Length(const Point3D& vector) {
    return std::sqrt(vector.x * vector.x + vector.y * vector.y + vector.z * vector.z);
}

Point3D Difference(const Point3D& a, const Point3D& b) {
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}

/// The mean of the vertices.
Point3D MiddleOf(const std::vector<Point3D>& vertices) {
    Point3D offset;
    for (const Point3D& vertex : vertices) {
        const Point3D step = Difference(vertex, vertices[0]);
        offset = {offset.x + step.x, offset.y + step.y, offset.z + step.z};
    }
    const auto count = static_cast<double>(vertices.size());
    return {vertices[0].x + offset.x / count, vertices[0].y + offset.y / count,
            vertices[0].z + offset.z / count};
}

/// Newell's normal: twice the area long.
Point3D NewellNormal(const std::vector<Point3D>& vertices, const Point3D& middle) {
    Point3D normal;
    for (std::size_t i = 0; i < vertices.size(); ++i) {
        const Point3D a = Difference(vertices[i], middle);
        const Point3D b = Difference(vertices[(i + 1) % vertices.size()], middle);
        normal.x += a.y * b.z - a.z * b.y;
        normal.y += a.z * b.x - a.x * b.z;
        normal.z += a.x * b.y - a.y * b.x;
    }
    return normal;
}

} // namespace

SurfaceFlatness MeasureFlatness(const std::vector<Point3D>& vertices) {
    SurfaceFlatness flatness;
    if (vertices.size() < 3) {
        return flatness;
    }
    const Point3D middle = MiddleOf(vertices);
    const Point3D normal = NewellNormal(vertices, middle);
    const double length = Length(normal);
    flatness.area = length / 2.0;
    double extent = 0.0;
    for (std::size_t i = 0; i < vertices.size(); ++i) {
        const Point3D off = Difference(vertices[i], middle);
        extent = std::max(extent, 2.0 * Length(off));
        const double along = off.x * normal.x + off.y * normal.y + off.z * normal.z;
        const double deviation = length > 0.0 ? std::abs(along) / length : 0.0;
        // Of vertices that stray alike, as those of a warped quadrilateral do, the first.
        if (deviation > flatness.deviation + 1e-9) {
            flatness.deviation = deviation;
            flatness.worstVertex = i;
        }
    }
    flatness.tolerance = 0.001 + 1e-5 * extent;
    return flatness;
}

} // namespace Merivane::Document
