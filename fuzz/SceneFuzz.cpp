// Whatever the bytes of a scene document, reading ends without a crash: in one sentence that can be
// shown, or in a record whose scene, tables, results and plans can be built.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "Catalog/Json.hpp"
#include "Document/PlanAssembly.hpp"
#include "Document/ResultDocument.hpp"
#include "Document/ResultTable.hpp"
#include "Document/SceneBuild.hpp"
#include "Document/SceneDocument.hpp"
#include "Simulation/PolygonGeometry.hpp"
#include "Simulation/Study/ZoneAnalysis.hpp"
#include "Text/ShownText.hpp"

using namespace Merivane;

namespace {

void Require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

bool LoadIes(const std::string& path, std::string& bytes) {
    bytes = "IESNA:LM-63-2002\n[LUMCAT] " + path +
            "\nTILT=NONE\n1 1000 1 3 1 1 2 0.1 0.2 0\n1 1 25\n0 90 180\n0\n1 1 1\n";
    return path != "falta.ies";
}

/// Large rooms and arrays are as valid as small ones, but laying their points and explaining the
/// glare of a million luminaires is not what is tried here.
bool IsSmall(const Simulation::LightingStudy& document) {
    double nodes = 0.0;
    for (const Simulation::StudyZone& zone : document.zones) {
        const Simulation::Bounds2D bounds = Simulation::OuterBounds(zone.outline);
        nodes += Simulation::GridNodeCount(zone.outline, zone.grid);
        nodes += (bounds.maximum.x - bounds.minimum.x + zone.height) *
                 (bounds.maximum.y - bounds.minimum.y + zone.height);
    }
    double lights = 0.0;
    for (const Simulation::SceneLuminaire& luminaire : document.luminaires) {
        lights += static_cast<double>(luminaire.arrayCountX) * luminaire.arrayCountY;
    }
    return nodes < 20000.0 && lights < 1000.0;
}

Simulation::SimulationResult DarkResult(const Simulation::StudyScene& built) {
    Simulation::SimulationResult result;
    for (const Simulation::SensorPlane& plane : built.scene.sensorPlanes) {
        Simulation::ZoneResult zone{plane.name, {}, {}};
        zone.illuminance.assign(Simulation::ActiveNodeCount(plane.grid), 0.0);
        result.zones.push_back(zone);
    }
    result.pointIlluminance.assign(built.scene.points.size(), 0.0);
    result.pointDirectIlluminance = result.pointIlluminance;
    return result;
}

void BuildAll(const Simulation::LightingStudy& document) {
    Simulation::StudyScene built;
    std::string error;
    if (!Document::BuildScene(document, built, error)) {
        Require(!error.empty() && Text::IsPlainText(error));
        return;
    }
    Require(built.planes.size() == built.scene.sensorPlanes.size());
    const Simulation::SimulationResult result = DarkResult(built);
    std::vector<Simulation::ZoneAnalysis> analyses;
    for (std::size_t zone = 0; zone < document.zones.size(); ++zone) {
        analyses.push_back(Simulation::AnalyseZone(document, built, result, zone, true));
    }
    Catalog::JsonValue json;
    Document::RunRecord run;
    run.explained = true;
    Require(Catalog::JsonParse(
                Document::WriteResultDocument(document, built, result, analyses, run), json)
                .ok);
    for (std::size_t i = 0; i < result.zones.size(); ++i) {
        Document::WritePlaneTable(built.scene.sensorPlanes[i], result.zones[i].illuminance);
    }
    Document::AssemblePlans(document, built, result, analyses, {});
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    Simulation::LightingStudy document;
    std::string error;
    if (!Document::ParseSceneDocument(text, LoadIes, document, error)) {
        Require(!error.empty() && Text::IsPlainText(error));
        return 0;
    }
    if (IsSmall(document)) {
        BuildAll(document);
    }
    return 0;
}
