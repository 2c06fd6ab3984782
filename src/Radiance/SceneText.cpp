#include "Radiance/SceneText.hpp"

#include <cstddef>
#include <initializer_list>

#include "Radiance/RadianceNumber.hpp"

namespace Merivane::Radiance {

namespace {

using Simulation::Point2D;
using Simulation::Point3D;
using Simulation::Scene;
using Simulation::SceneMaterial;
using Simulation::ScenePoint;
using Simulation::SceneSurface;
using Simulation::SensorPlane;

// A micrometre: finer than any model, and coarse enough to keep the files short.
constexpr int LengthDecimals = 6;
constexpr int FractionDecimals = 4;

// Suffix of the second definition of a glass, which the outdoors sees.
constexpr std::string_view ExteriorSuffix = "_ext";

bool HasOwnReflectances(const SceneMaterial& material) {
    return material.isGlass && material.reflectanceInside >= 0.0;
}

std::string ModifierName(const Scene& scene, std::size_t index) {
    return "m" + std::to_string(index) + "_" + SanitizeName(scene.materials[index].name);
}

std::string Joined(std::initializer_list<double> values, int decimals) {
    std::string text;
    for (const double value : values) {
        if (!text.empty()) {
            text += ' ';
        }
        text += FormatNumber(value, decimals);
    }
    return text;
}

// Rdot is the cosine to the side that the polygon's normal faces: the pane mirrors on that side
// only, and lets the same light through both ways.
std::string ReflectingGlassText(const std::string& modifier, const std::string& transmittance,
                                double reflectance) {
    const std::string mirror = "if(Rdot," + FormatNumber(reflectance, FractionDecimals) + ",0)";
    return "void BRTDfunc " + modifier + "\n10 " + mirror + " " + mirror + " " + mirror + " " +
           transmittance + " 0 0 0 .\n0\n9 0 0 0 0 0 0 0 0 0\n\n";
}

std::string MaterialText(const SceneMaterial& material, const std::string& modifier) {
    const std::string colour =
        Joined({material.red, material.green, material.blue}, FractionDecimals);
    if (!material.isGlass) {
        return "void plastic " + modifier + "\n0\n0\n5 " + colour + " 0 0\n\n";
    }
    if (!HasOwnReflectances(material)) {
        return "void glass " + modifier + "\n0\n0\n3 " + colour + "\n\n";
    }
    return ReflectingGlassText(modifier, colour, material.reflectanceInside) +
           ReflectingGlassText(modifier + std::string(ExteriorSuffix), colour,
                               material.reflectanceOutside);
}

bool IsWritten(const Scene& scene, const SceneSurface& surface) {
    return surface.vertices.size() >= 3 && surface.materialIndex >= 0 &&
           static_cast<std::size_t>(surface.materialIndex) < scene.materials.size();
}

std::string PolygonText(const Scene& scene, const SceneSurface& surface, std::size_t number) {
    const auto index = static_cast<std::size_t>(surface.materialIndex);
    std::string text = ModifierName(scene, index);
    if (surface.exteriorFace && HasOwnReflectances(scene.materials[index])) {
        text += ExteriorSuffix;
    }
    text += " polygon p" + std::to_string(number) + "\n0\n0\n" +
            std::to_string(3 * surface.vertices.size()) + "\n";
    for (const Point3D& vertex : surface.vertices) {
        text += "\t" + Joined({vertex.x, vertex.y, vertex.z}, LengthDecimals) + "\n";
    }
    return text + "\n";
}

std::string SensorText(const SensorPlane& plane, Point2D point) {
    if (plane.vertical) {
        return Joined({plane.directionX * point.x + plane.originX,
                       plane.directionY * point.x + plane.originY, point.y, plane.normalX,
                       plane.normalY},
                      LengthDecimals) +
               " 0\n";
    }
    return Joined({point.x, point.y, plane.grid.z}, LengthDecimals) +
           (plane.facesDown ? " 0 0 -1\n" : " 0 0 1\n");
}

} // namespace

std::string SanitizeName(std::string_view text) {
    std::string name;
    for (const char c : text) {
        const bool kept =
            (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
        name += kept ? c : '_';
    }
    return name.empty() ? "x" : name;
}

std::string MaterialsText(const Scene& scene) {
    std::string text = "# Vantoro: superficies difusas (plastic sem especular) e vidros (glass)\n";
    for (std::size_t i = 0; i < scene.materials.size(); ++i) {
        text += MaterialText(scene.materials[i], ModifierName(scene, i));
    }
    return text;
}

std::string GeometryText(const Scene& scene) {
    std::string text = "# Vantoro: geometria do ambiente\n";
    for (std::size_t i = 0; i < scene.surfaces.size(); ++i) {
        if (IsWritten(scene, scene.surfaces[i])) {
            text += PolygonText(scene, scene.surfaces[i], i);
        }
    }
    return text;
}

std::string SensorsText(const Scene& scene) {
    std::string text;
    for (const SensorPlane& plane : scene.sensorPlanes) {
        for (const Point2D& point : Simulation::ActivePoints(plane.grid)) {
            text += SensorText(plane, point);
        }
    }
    return text;
}

std::string PointsText(const Scene& scene) {
    std::string text;
    for (const ScenePoint& point : scene.points) {
        text += Joined({point.x, point.y, point.z, point.directionX, point.directionY,
                        point.directionZ},
                       LengthDecimals) +
                "\n";
    }
    return text;
}

} // namespace Merivane::Radiance
