#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "Document/DocumentFields.hpp"
#include "Document/SceneDocument.hpp"

/// The readers of the scene document's records, each a table of its keys. They refuse as
/// `ReadObject` does.
namespace Merivane::Document {

/// Where things of a project may stand [m].
inline constexpr NumberRange CoordinateRange = {-100000.0, 100000.0};

/// The materials of a document by their names.
using MaterialNames = std::map<std::string, std::size_t, std::less<>>;

/// The photometric files that a document names, each read once.
struct IesLibrary {
    IesLoader load;
    std::map<std::string, Photometry::IesFile, std::less<>> files; ///< by path; header in UTF-8
    std::vector<std::string> warnings; ///< of all files, each sentence with its file's name
};

bool ReadMaterial(const Place& place, Simulation::SceneMaterial& material, std::string& error);

/// The names of materials in their order; refuses one that is already taken.
bool NameMaterials(const Place& materialList,
                   const std::vector<Simulation::SceneMaterial>& materials, MaterialNames& names,
                   std::string& error);

bool ReadSurface(const Place& place, const MaterialNames& names, Simulation::SceneSurface& surface,
                 std::string& error);

bool ReadLuminaire(const Place& place, IesLibrary& library, Simulation::SceneLuminaire& luminaire,
                   std::string& error);

bool ReadZone(const Place& place, Simulation::StudyZone& zone, std::string& error);

/// The readers of what a Zone is verified against, each for its key. The activity's is to stand
/// behind that of the Zone's name and before those of its own values.
FieldReader IntoActivity(Simulation::StudyZone& zone);
FieldReader IntoScreens(std::int32_t& screens);

/// Refuses values of a Zone's own that no activity takes.
bool CheckActivity(const Place& zonePlace, std::string& error);

/// A sentence for each Zone whose name was to suggest an activity and does not.
std::vector<std::string> ActivityWarnings(const std::vector<Simulation::StudyZone>& zones);

bool ReadStandard(const Place& place, Simulation::ReferenceStandard& standard, std::string& error);

/// An observer without a name gets its number in the list, from 1.
bool ReadObserver(const Place& place, Simulation::UgrObserver& observer, std::string& error);

bool ReadPoint(const Place& place, Simulation::ScenePoint& point, std::string& error);

bool ReadEngine(const Place& place, Simulation::EngineSettings& engine, std::string& error);

bool ReadLevels(const Place& place, Simulation::LevelList& levels, std::string& error);

} // namespace Merivane::Document
