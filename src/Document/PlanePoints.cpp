#include "Document/PlanePoints.hpp"

namespace Merivane::Document {

std::vector<Simulation::Point3D> PlanePoints(const Simulation::SensorPlane& plane) {
    std::vector<Simulation::Point3D> points;
    for (const Simulation::Point2D& point : Simulation::ActivePoints(plane.grid)) {
        if (plane.vertical) {
            points.push_back({plane.originX + plane.directionX * point.x,
                              plane.originY + plane.directionY * point.x, point.y});
        } else {
            points.push_back({point.x, point.y, plane.grid.z});
        }
    }
    return points;
}

} // namespace Merivane::Document
