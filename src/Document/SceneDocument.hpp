#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "Simulation/CalculationGrid.hpp"
#include "Simulation/EngineSettings.hpp"
#include "Simulation/Geometry.hpp"
#include "Simulation/Glare/GlareRecords.hpp"
#include "Simulation/LevelList.hpp"
#include "Simulation/Scene.hpp"
#include "Simulation/Verification/ZoneRequirement.hpp"

/// The scene document: a JSON text with Portuguese keys that tells one calculation whole. Its keys,
/// units, ranges and defaults stand in docs/cena.md.
namespace Merivane::Document {

/// The newest format of the document that is understood.
inline constexpr int SceneFormat = 1;

/// What a Zone is verified against.
struct ZoneTask {
    /// With an empty `taskId` the Zone is not verified; otherwise the table has its row.
    Simulation::ZoneRequirement requirement;
    bool byName = false; ///< the activity was to be suggested from the Zone's name
};

/// One Zone as the document tells it: a room whose work plane is calculated.
struct DocumentZone {
    std::string name;
    Simulation::Polygon2D outline; ///< in plan [m]; no ring crosses itself or another
    double floorLevel = 0.0;       ///< [m]
    double height = 0.0;           ///< floor to ceiling [m], above 0
    Simulation::GridSettings grid; ///< work plane, border band, wall offset, spacing [m]
    bool calculateWalls = false;
    bool calculateCeiling = false;
    bool calculateFloor = false;
    ZoneTask task;
};

/// A scene document as read, every name resolved and every value inside its range.
struct SceneDocument {
    std::string name; ///< of the project; may be empty
    std::vector<Simulation::SceneMaterial> materials;
    std::vector<Simulation::SceneSurface> surfaces;     ///< flat, of an area above 0
    std::vector<Simulation::SceneLuminaire> luminaires; ///< with their photometry
    std::vector<DocumentZone> zones;
    std::vector<Simulation::ScenePoint> points;     ///< directions of length 1
    std::vector<Simulation::UgrObserver> observers; ///< placed by the user; sights of length 1
    Simulation::ReferenceStandard standard = Simulation::ReferenceStandard::Brazilian;
    Simulation::EngineSettings engine; ///< `profile` is that of the numbers
    Simulation::LevelList levels;
    std::vector<std::string> warnings; ///< Portuguese sentences, nothing that stops the work
};

/// Gives the bytes of an IES file by the path that stands in the document. Returns false when it
/// can't be read. Each path is asked for once.
using IesLoader = std::function<bool(const std::string& path, std::string& bytes)>;

/// Reads a scene document from its text. Returns false at the first thing that can't be accepted;
/// `error` is then one Portuguese sentence that names the place ("zonas[1].contorno[3]"), what was
/// expected and what was found, and `document` must not be used.
bool ParseSceneDocument(std::string_view text, const IesLoader& loadIes, SceneDocument& document,
                        std::string& error);

/// Reads a scene document and the IES files that it names, their paths taken from the document's
/// folder. Refuses as `ParseSceneDocument` does; the sentence names the document's file.
bool ReadSceneDocument(const std::wstring& path, SceneDocument& document, std::string& error);

} // namespace Merivane::Document
