#pragma once

#include <string>
#include <vector>

#include "Simulation/CalculationGrid.hpp"
#include "Simulation/EngineSettings.hpp"
#include "Simulation/Geometry.hpp"
#include "Simulation/Glare/GlareRecords.hpp"
#include "Simulation/LevelList.hpp"
#include "Simulation/Scene.hpp"
#include "Simulation/Verification/ZoneRequirement.hpp"

namespace Merivane::Simulation {

/// What a Zone is verified against.
struct StudyTask {
    /// With an empty `taskId` the Zone is not verified; otherwise the table has its row.
    ZoneRequirement requirement;
    bool byName = false; ///< the activity was suggested from the Zone's name
};

/// One Zone of a study: a room whose work plane is calculated.
struct StudyZone {
    std::string name;
    Polygon2D outline;       ///< in plan [m]; no ring crosses itself or another
    double floorLevel = 0.0; ///< [m]
    double height = 0.0;     ///< floor to ceiling [m], above 0
    GridSettings grid;       ///< work plane, border band, wall offset, spacing [m]
    bool calculateWalls = false;
    bool calculateCeiling = false;
    bool calculateFloor = false;
    StudyTask task;
};

/// What is asked of one calculation, wherever it comes from: a scene document or an open project.
struct LightingStudy {
    std::string name; ///< of the project; may be empty
    std::vector<SceneMaterial> materials;
    std::vector<SceneSurface> surfaces;     ///< flat, of an area above 0
    std::vector<SceneLuminaire> luminaires; ///< with their photometry
    std::vector<StudyZone> zones;
    std::vector<ScenePoint> points;     ///< directions of length 1
    std::vector<UgrObserver> observers; ///< placed by the user; sights of length 1
    bool glare = true;                  ///< glare is analysed
    ReferenceStandard standard = ReferenceStandard::Brazilian;
    EngineSettings engine; ///< `profile` is that of the numbers
    LevelList levels;
    std::vector<std::string> warnings; ///< Portuguese sentences, nothing that stops the work
};

} // namespace Merivane::Simulation
