#include "Simulation/Run/ReflectionEstimate.hpp"

#include <cmath>
#include <cstddef>

#include "Radiance/RtraceOptions.hpp"
#include "Simulation/PrintedValue.hpp"
#include "Simulation/SurfaceGeometry.hpp"

namespace Merivane::Simulation {

namespace {

// What plain glass mirrors at normal incidence: two faces of refractive index 1.52.
constexpr double PlainGlassReflectance = 0.08;

constexpr double AcceptedOmission = 0.05;

// Area of a flat polygon in space [m2]: half the length of Newell's normal.
double PolygonArea(const std::vector<Point3D>& vertices) {
    const Point3D normal = NewellNormal(vertices);
    return std::hypot(normal.x, normal.y, normal.z) / 2.0;
}

double Reflectance(const SceneMaterial& material, bool exteriorFace) {
    if (!material.isGlass) {
        return GreyReflectance(material);
    }
    if (material.reflectanceInside < 0.0) {
        return PlainGlassReflectance;
    }
    return exteriorFace ? material.reflectanceOutside : material.reflectanceInside;
}

std::string ReflectionsWord(std::int32_t reflections) {
    if (reflections == 0) {
        return "Sem reflexões";
    }
    return "Com " + std::to_string(reflections) + (reflections == 1 ? " reflexão" : " reflexões");
}

} // namespace

double MeanReflectance(const Scene& scene) {
    double area = 0.0;
    double reflectingArea = 0.0;
    for (const SceneSurface& surface : scene.surfaces) {
        const auto index = static_cast<std::size_t>(surface.materialIndex);
        if (surface.materialIndex < 0 || index >= scene.materials.size() ||
            surface.vertices.size() < 3) {
            continue;
        }
        const double size = PolygonArea(surface.vertices);
        area += size;
        reflectingArea += size * Reflectance(scene.materials[index], surface.exteriorFace);
    }
    return area > 0.0 ? reflectingArea / area : 0.0;
}

double OmittedReflection(double meanReflectance, std::int32_t reflections) {
    return std::pow(meanReflectance, reflections + 1);
}

std::string ReflectionWarning(const Scene& scene, const SimulationOptions& options) {
    const double mean = MeanReflectance(scene);
    const std::int32_t reflections = Radiance::ReflectionCount(options);
    const double omitted = OmittedReflection(mean, reflections);
    if (omitted <= AcceptedOmission) {
        return {};
    }
    return ReflectionsWord(reflections) + ", cerca de " + FormatDecimal(omitted * 100.0, 0) +
           " % da luz refletida fica de fora do cálculo (refletância média da cena: " +
           FormatDecimal(mean * 100.0, 0) + " %).";
}

} // namespace Merivane::Simulation
