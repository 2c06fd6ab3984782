#include "Simulation/Scene.hpp"

namespace Merivane::Simulation {

std::uint64_t PlanePointCount(const Scene& scene) {
    std::uint64_t count = 0;
    for (const SensorPlane& plane : scene.sensorPlanes) {
        count += ActiveNodeCount(plane.grid);
    }
    return count;
}

std::uint64_t TotalPointCount(const Scene& scene) {
    return PlanePointCount(scene) + scene.points.size();
}

} // namespace Merivane::Simulation
