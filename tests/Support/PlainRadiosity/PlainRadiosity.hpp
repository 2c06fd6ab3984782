#pragma once

#include <array>
#include <vector>

#include "Simulation/Geometry.hpp"
#include "Simulation/Glare/GlareRecords.hpp"
#include "Simulation/Glare/UgrTable.hpp"
#include "Simulation/Scene.hpp"

/// The background luminance of standard rooms told step by step: every patch, every luminaire,
/// dense form factors in order, one sweep after the other. Slow on purpose: it is the peer that the
/// fast road (mirror symmetry, shared offsets, all right-hand sides at once) must agree with, and
/// shares none of its code.
namespace Merivane::Tests {

/// One patch of a room's lining.
struct PlainPatch {
    Simulation::Point3D center; ///< [m]
    Simulation::Point3D normal; ///< unit vector into the room
    Simulation::Point3D halfU;  ///< [m]
    Simulation::Point3D halfV;
    double area = 0.0;        ///< [m2]
    double reflectance = 0.0; ///< [0..1]
};

/// Floor, ceiling, then the walls y = 0, y = Y, x = 0 and x = X, rows after columns.
std::vector<PlainPatch> PlainPatches(const Simulation::UgrRoom& room);

/// Form factor from a point with a normal to a patch [0..1], before any closure.
double PlainPointToPatch(const Simulation::Point3D& point, const Simulation::Point3D& normal,
                         const PlainPatch& patch);

/// What the patches receive straight from the luminaires [lux], scaled so that all of the flux
/// lands on the room.
std::vector<double> PlainIrradiance(const std::vector<PlainPatch>& patches,
                                    const Simulation::SceneLuminaire& luminaire,
                                    const Simulation::UgrRoom& room);

/// Form factors over area, closed, row after row: what patch i receives of what patch j emits.
std::vector<float> PlainTransport(const std::vector<PlainPatch>& patches);

/// Radiosity of each patch [lm/m2].
std::vector<double> PlainRadiosity(const std::vector<PlainPatch>& patches,
                                   const std::vector<double>& irradiance,
                                   const std::vector<float>& transport);

/// Reflected light on the four observers' eyes [lux].
std::array<double, 4> PlainBackground(const Simulation::UgrRoom& room,
                                      const Simulation::SceneLuminaire& luminaire);

/// The four observers' results, room built and solved for this one case.
std::array<Simulation::GlareResult, 4>
PlainEvaluateRoom(const Simulation::SceneLuminaire& luminaire, const Simulation::UgrRoom& room,
                  const Simulation::GlareOptions& options);

/// The whole table as 190 rooms, each evaluated for itself.
Simulation::UgrTableValues PlainTable(const Simulation::SceneLuminaire& luminaire, double height,
                                      const Simulation::GlareOptions& options);

} // namespace Merivane::Tests
