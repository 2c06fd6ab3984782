#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "Simulation/Geometry.hpp"
#include "Simulation/Glare/GlareRecords.hpp"
#include "Simulation/Glare/RoomObservers.hpp"
#include "Simulation/Scene.hpp"
#include "Simulation/ZoneSpace.hpp"

namespace Merivane::Simulation {

/// Why a model of luminaire has no tabular value.
enum class TabularOmission {
    None,
    Linear,   ///< tapes and continuous lines make no grid
    BelowEye, ///< H under 0.3 m
    NoOpening ///< the IES file tells no luminous opening
};

/// One model of luminaire over a Zone: all that share one photometry.
struct ModelGlare {
    std::string name;
    std::size_t luminaire = 0; ///< into `Scene::luminaires`: the first of its kind
    std::size_t count = 0;     ///< light sources
    double height = 0.0;       ///< H: mean photometric centre above the eye [m]
    TabularOmission omission = TabularOmission::None;
    TabularUgr tabular;          ///< without omission
    double referenceUgr = 0.0;   ///< without omission
    bool isSmall = false;        ///< opening under 0.005 m2
    double smallSourceUgr = 0.0; ///< CIE 147, only where `isSmall`
    double upwardFlux = 0.0;     ///< [0..1]
};

/// One light source over a Zone.
struct ZoneLight {
    std::size_t luminaire = 0; ///< into `Scene::luminaires`
    Point3D center;            ///< photometric centre [m]
};

/// What one observer of the real room sees.
struct ObserverGlareRecord {
    RoomObserver observer;
    GlareResult result;
    std::vector<GlareTerm> terms; ///< one for each of `ZoneGlare::lights`
};

/// The glare of one Zone. Texts are Portuguese; the log's are without accents, as quoted.
struct ZoneGlare {
    bool hasUgr = false; ///< some model has a tabular value
    double ugr = 0.0;    ///< the largest of them: the value for the verification
    double referenceUgr = 0.0;
    bool hasSmallSourceUgr = false;
    double smallSourceUgr = 0.0;     ///< CIE 147, the largest; informative
    double ceilingReflectance = 0.0; ///< used for reading the table [0..1]
    double wallReflectance = 0.0;
    double maintenanceFactor = 1.0; ///< mean over the Zone's luminaires, at least 0.05
    std::vector<ZoneLight> lights;  ///< the Zone's, those that the observers are told of
    std::vector<ModelGlare> models;
    std::vector<ObserverGlareRecord> observers; ///< mid-wall first, then placed
    std::vector<std::string> log;
    std::vector<std::string> notes;    ///< of the Zone's sheet
    std::vector<std::string> warnings; ///< those of the notes that warn, told under "Atenção (UGR)"
};

/// Glare of one Zone: the tabular value of every model of luminaire over it, then what the
/// observers see of the real layout. `ugrLimit` is the activity's UGRL, 0 where the standard gives
/// none; `hasTask` tells that apart from a Zone without activity. `terms` of the observers are
/// kept only with `explain`.
ZoneGlare AnalyseZoneGlare(const ZoneSpace& zone, const Scene& scene,
                           const std::vector<RoomObserver>& observers, bool hasTask,
                           std::int32_t ugrLimit, bool explain);

} // namespace Merivane::Simulation
