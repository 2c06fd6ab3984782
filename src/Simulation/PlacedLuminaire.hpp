#pragma once

#include <cstddef>
#include <functional>
#include <vector>

#include "Photometry/LuminaireRotation.hpp"
#include "Simulation/Geometry.hpp"
#include "Simulation/LuminousOpening.hpp"
#include "Simulation/Scene.hpp"

namespace Merivane::Simulation {

/// One light source at its place: a luminaire, or one copy of its array. It refers to the scene's
/// luminaire, so that the thousands of a regular grid share one photometric table.
struct PlacedLuminaire {
    const SceneLuminaire* luminaire = nullptr; ///< not owned, must outlive this
    std::size_t index = 0;                     ///< of the luminaire in the list placed
    Point3D center;                            ///< photometric centre [m]
    /// Photometric frame (light along (0, 0, -1), C0 along +x) to the project's: aiming, mirror
    /// and rotation of the object. Orthogonal; its determinant is -1 for a mirrored object.
    Photometry::RotationMatrix frame = {1, 0, 0, 0, 1, 0, 0, 0, 1};
    LuminousOpening opening;
    double outputFactor = 1.0; ///< on the file's candela: dimming times length scale
};

/// Tells of a photometric centre whether the light source there is wanted.
using PlaceFilter = std::function<bool(const Point3D&)>;

/// Every light source of `luminaires`, in their order; copies of an array along x, then y. Steps of
/// an array run along the project's axes. With `keep` only those whose place passes, so that the
/// rest of a large array costs no memory. `luminaires` must outlive the result.
std::vector<PlacedLuminaire> PlaceLuminaires(const std::vector<SceneLuminaire>& luminaires,
                                             const PlaceFilter& keep = nullptr);

/// Intensity of the light source towards `point` [cd]: the file's candela in that direction, its
/// multiplier counted once, times the output factor; maintenance is left out, the flux is the
/// initial one. `apparentArea` [m2] is that of its opening seen from there. Both are 0 when the
/// point is the photometric centre.
double LuminousIntensityTowards(const PlacedLuminaire& luminaire, const Point3D& point,
                                double& apparentArea);

} // namespace Merivane::Simulation
