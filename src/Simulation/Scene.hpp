#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "Photometry/IesFile.hpp"
#include "Photometry/LuminaireContract.hpp"
#include "Simulation/CalculationGrid.hpp"
#include "Simulation/Geometry.hpp"

namespace Merivane::Simulation {

/// A diffuse material or a glass. Fractions [0..1].
struct SceneMaterial {
    std::string name; ///< display name; only ASCII letters and digits reach Radiance
    double red = 0.5; ///< opaque: diffuse reflectance; glass: transmissivity; glass with
                      ///< reflectances of its own: transmittance
    double green = 0.5;
    double blue = 0.5;
    bool isGlass = false;
    double reflectanceInside = -1.0; ///< at 0 or more the glass has reflectances of its own
    double reflectanceOutside = -1.0;
};

/// One flat face of the model.
struct SceneSurface {
    std::int32_t materialIndex = 0; ///< into `Scene::materials`; out of range = left out
    std::vector<Point3D> vertices;  ///< [m], at least 3, in the order of the outward normal
    bool exteriorFace = false;      ///< looks away from every calculated Zone
};

/// One light source as placed.
struct SceneLuminaire {
    std::string id;          ///< ASCII letters and digits
    std::string displayName; ///< for log lines and errors
    std::string guid;
    std::string manufacturer;
    std::string lamp;
    std::string typeKey; ///< tells luminaire types apart, see `LuminaireTypeKey`
    double inputWatts = 0.0;
    Photometry::IesFile photometry;
    Photometry::LuminaireSettings contract;
    double dimming = 1.0; ///< [0..1]
    double x = 0.0;       ///< origin of the object [m]
    double y = 0.0;
    double z = 0.0;
    double rotation = 0.0; ///< about z [rad]
    bool mirrored = false;
    std::int32_t arrayCountX = 1; ///< copies along world x; 1 or less = none
    std::int32_t arrayCountY = 1;
    double arrayStepX = 0.0; ///< [m]
    double arrayStepY = 0.0;
    double lengthScale = 1.0; ///< factor on flux and length, for pieces of a linear run
};

/// One planar set of calculation points. A point (u, v) of a horizontal plane stands at
/// (u, v, grid.z) and looks up, or down when `facesDown` is set. A point (u, v) of a vertical plane
/// stands at (originX + directionX * u, originY + directionY * u, v) and looks along the normal.
struct SensorPlane {
    std::string name;
    CalculationGrid grid;
    bool vertical = false;
    bool facesDown = false;
    double originX = 0.0;
    double originY = 0.0;
    double directionX = 1.0; ///< unit vector
    double directionY = 0.0;
    double normalX = 0.0; ///< unit vector
    double normalY = 1.0;
};

/// A loose calculation point [m] with the direction it looks in.
struct ScenePoint {
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
    double directionX = 0.0;
    double directionY = 0.0;
    double directionZ = 0.0;
};

/// Everything that one calculation is told.
struct Scene {
    std::vector<SceneMaterial> materials;
    std::vector<SceneSurface> surfaces;
    std::vector<SceneLuminaire> luminaires;
    std::vector<SensorPlane> sensorPlanes; ///< in calculation order
    std::vector<ScenePoint> points;
};

/// Calculation points of all planes; loose points are not counted.
std::uint64_t PlanePointCount(const Scene& scene);

/// Points told in the progress title: those of all planes and the loose ones.
std::uint64_t TotalPointCount(const Scene& scene);

} // namespace Merivane::Simulation
