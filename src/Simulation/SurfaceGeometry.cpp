#include "Simulation/SurfaceGeometry.hpp"

#include <cstddef>

namespace Merivane::Simulation {

Point3D NewellNormal(const std::vector<Point3D>& vertices) {
    Point3D normal;
    // About the first vertex: far from the project's origin the products would lose digits.
    for (std::size_t i = 1; i + 1 < vertices.size(); ++i) {
        const Point3D a{vertices[i].x - vertices[0].x, vertices[i].y - vertices[0].y,
                        vertices[i].z - vertices[0].z};
        const Point3D b{vertices[i + 1].x - vertices[0].x, vertices[i + 1].y - vertices[0].y,
                        vertices[i + 1].z - vertices[0].z};
        normal.x += a.y * b.z - a.z * b.y;
        normal.y += a.z * b.x - a.x * b.z;
        normal.z += a.x * b.y - a.y * b.x;
    }
    return normal;
}

double GreyReflectance(const SceneMaterial& material) {
    return 0.265 * material.red + 0.67 * material.green + 0.065 * material.blue;
}

} // namespace Merivane::Simulation
