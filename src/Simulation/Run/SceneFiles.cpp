#include "Radiance/SceneText.hpp"
#include "Simulation/Run/RunSteps.hpp"

namespace Merivane::Simulation {

namespace {

// The first plane whose grid is beyond what a run takes, or null.
const SensorPlane* FindTooLargePlane(const Scene& scene) {
    for (const SensorPlane& plane : scene.sensorPlanes) {
        const auto columns = static_cast<std::int64_t>(plane.grid.columns);
        if (columns * plane.grid.rows > MaximumGridNodes) {
            return &plane;
        }
    }
    return nullptr;
}

std::string SceneLine(const Scene& scene) {
    return "cena: " + std::to_string(scene.surfaces.size()) + " superficie(s), " +
           std::to_string(scene.materials.size()) + " material(is), " +
           std::to_string(scene.luminaires.size()) + " luminaria(s)";
}

} // namespace

bool WriteSceneFiles(RunContext& run) {
    const Scene& scene = run.scene;
    Log(run, SceneLine(scene));
    if (const SensorPlane* plane = FindTooLargePlane(scene)) {
        return Fail(run, plane->name + ": a malha de calculo tem mais de 20 milhoes de nos");
    }
    if (!WriteWorkFile(run, "materials.rad", Radiance::MaterialsText(scene)) ||
        !WriteWorkFile(run, "geometry.rad", Radiance::GeometryText(scene)) ||
        !WriteWorkFile(run, "sensors.pts", Radiance::SensorsText(scene))) {
        return Fail(run, "nao foi possivel gravar os arquivos da cena");
    }
    run.planePoints = PlanePointCount(scene);
    if (run.planePoints == 0 && scene.points.empty()) {
        return Fail(run, "nenhum ponto de calculo nas zonas");
    }
    return true;
}

} // namespace Merivane::Simulation
