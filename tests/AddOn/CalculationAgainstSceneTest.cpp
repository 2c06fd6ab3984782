#include <algorithm>
#include <charconv>
#include <string>
#include <variant>
#include <vector>

#include "AddOn/AddOnState.hpp"
#include "AddOn/CalculationSession.hpp"
#include "AddOn/Commands/CalculateLighting.hpp"
#include "Archicad/ModelSample.hpp"
#include "Archicad/StoredSettings.hpp"
#include "Archicad/ZoneTaskStorage.hpp"
#include "Document/SceneBuild.hpp"
#include "Document/SceneDocument.hpp"
#include "Simulation/Run/RunScenes.hpp"
#include "Simulation/Run/RunSimulation.hpp"

namespace Merivane::Commands {
namespace {

using Simulation::VerificationRow;

/// The sample's room as a person would write it down from its plan, the table of reflectances and
/// the luminaires' photometric file: the six faces that close it.
constexpr const char* RoomScene = R"({
    "formato": 1,
    "materiais": [
        {"nome": "Piso", "refletancia": 0.31},
        {"nome": "Parede", "refletancia": 0.52},
        {"nome": "Teto", "refletancia": 0.85}
    ],
    "superficies": [
        {"material": "Piso", "vertices": [[0.1, 0.1, 0], [1.9, 0.1, 0], [1.9, 1.9, 0], [0.1, 1.9, 0]]},
        {"material": "Teto", "vertices": [[0.1, 0.1, 3], [0.1, 1.9, 3], [1.9, 1.9, 3], [1.9, 0.1, 3]]},
        {"material": "Parede", "vertices": [[0.1, 0.1, 0], [0.1, 0.1, 3], [1.9, 0.1, 3], [1.9, 0.1, 0]]},
        {"material": "Parede", "vertices": [[1.9, 0.1, 0], [1.9, 0.1, 3], [1.9, 1.9, 3], [1.9, 1.9, 0]]},
        {"material": "Parede", "vertices": [[1.9, 1.9, 0], [1.9, 1.9, 3], [0.1, 1.9, 3], [0.1, 1.9, 0]]},
        {"material": "Parede", "vertices": [[0.1, 1.9, 0], [0.1, 1.9, 3], [0.1, 0.1, 3], [0.1, 0.1, 0]]}
    ],
    "luminarias": [
        {"nome": "Plafon", "ies": "plafon.ies", "posicao": [0.5, 1, 2.5], "indiceDeReproducaoDeCor": 83,
         "repeticao": {"x": 2, "passoX": 1}}
    ],
    "zonas": [
        {"nome": "Sala", "altura": 3, "contorno": [[0.1, 0.1], [1.9, 0.1], [1.9, 1.9], [0.1, 1.9]],
         "calcularParedes": true, "calcularTeto": true, "calcularPiso": true,
         "atividade": "s22.2"}
    ],
    "motor": {"perfil": "rapido", "raios": 128, "raiosExtras": 0, "processos": 1}
})";

constexpr const char* LampFile = "IESNA:LM-63-2002\n[MANUFAC] Fabrica\n[LUMCAT] COD-1\n"
                                 "[LUMINAIRE] Plafon\n[LAMP] LED 830\nTILT=NONE\n"
                                 "1 1000 1 3 1 1 2 0.3 0.3 0\n1 1 12\n0 45 90\n0\n300 200 0\n";

/// The sample's room with its Zone drawn along the faces of the walls, and floor, walls and ceiling
/// of one finish each, also where they look away from the room.
Workbench::Project RoomProject() {
    Workbench::Project project = Tests::CalculationSample();
    for (Workbench::ProjectElement& element : project.elements) {
        if (element.element.header.guid == Tests::NumberedGuid(Tests::RoomZone)) {
            element.memo.polygon = {Tests::PlanRectangle(0.1, 0.1, 1.8, 1.8)};
        } else if (auto* const wall = std::get_if<Workbench::WallGeometry>(&element.geometry)) {
            wall->leftSurface = wall->edgeSurface = wall->rightSurface;
        } else if (auto* const slab = std::get_if<Workbench::SlabGeometry>(&element.geometry)) {
            slab->topSurface = slab->bottomSurface = {slab->top > 1.0 ? 1 : 3};
            slab->edgeSurface = {2};
        }
    }
    std::vector<Host::LibraryParameter>& lamp = project.parts.front().parameters;
    Tests::SetNumber(lamp, "mvWidth", 0.3);
    Tests::SetNumber(lamp, "mvLength", 0.3);
    Tests::SetNumber(lamp, "mvColourRendering", 83.0);
    return project;
}

struct SceneRun {
    Simulation::LightingStudy study;
    Simulation::ZoneAnalysis analysis;
};

class SceneRoad : public Tests::CalculationSession {
protected:
    SceneRun RunScene() const {
        SceneRun run;
        std::string error;
        const auto load = [](const std::string&, std::string& bytes) {
            bytes = LampFile;
            return true;
        };
        EXPECT_TRUE(Document::ParseSceneDocument(RoomScene, load, run.study, error)) << error;
        Simulation::StudyScene built;
        EXPECT_TRUE(Document::BuildScene(run.study, built, error)) << error;
        Simulation::SimulationOptions options = Tests::RunOptions(Folder() / "cena");
        options.engine = run.study.engine;
        options.repeatable = true;
        const Simulation::SimulationResult result =
            Simulation::RunSimulation(built.scene, options, {}, {}, {});
        EXPECT_TRUE(result.success) << result.error;
        run.analysis = Simulation::AnalyseZone(run.study, built, result, 0, false);
        return run;
    }

    /// The same task and engine on the project's road.
    Calculation RunProject(const SceneRun& scene) {
        OpenSample(RoomProject());
        CurrentAddOnState().run.repeatable = true;
        EXPECT_EQ(Archicad::SaveEngineSettings(scene.study.engine), Host::NoError);
        const std::string key = Archicad::ZoneKey(Tests::NumberedGuid(Tests::RoomZone));
        EXPECT_EQ(Archicad::SaveZoneTasks({{key, scene.study.zones[0].task.requirement}},
                                          scene.study.standard),
                  Host::NoError);
        Tests::PrepareAnswers(R"([{"dialogo": 32620, "itens": []}])");
        return RunCalculation();
    }
};

/// The number at the head of what a row calculated.
double NumberOf(const VerificationRow& row) {
    std::string text = row.calculated;
    std::replace(text.begin(), text.end(), ',', '.');
    double number = -1.0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

/// How far the two roads may be apart: 2 % of an illuminance, 0.05 of what is a share, 0.1 of a
/// surface's U0, which hangs on its one darkest point. The ends of
/// walls and slabs, which no one writes down, count in the mean reflectances of the project.
double ToleranceOf(const VerificationRow& row) {
    if (row.calculated.ends_with(" lx")) {
        return std::max(0.02 * NumberOf(row), 1.0);
    }
    if (row.criterion == "Teto U0" || row.criterion == "Paredes U0") {
        return 0.1;
    }
    return row.criterion.ends_with("U0") || row.criterion.starts_with("Reflet") ? 0.05 : 0.0;
}

void ExpectSameRows(const std::vector<VerificationRow>& project,
                    const std::vector<VerificationRow>& scene) {
    ASSERT_EQ(project.size(), scene.size());
    for (std::size_t i = 0; i < project.size(); ++i) {
        VerificationRow expected = scene[i];
        SCOPED_TRACE(expected.criterion);
        EXPECT_NEAR(NumberOf(project[i]), NumberOf(expected), ToleranceOf(expected) + 1e-9);
        expected.calculated = project[i].calculated;
        EXPECT_EQ(project[i], expected);
    }
}

TEST_F(SceneRoad, ComesToTheSameAsTheRoadFromTheProject) {
    const SceneRun scene = RunScene();
    const Calculation project = RunProject(scene);
    ASSERT_EQ(project.end, CalculationEnd::Done);
    const Simulation::ZoneAnalysis& drawn = project.analyses[0];
    const Simulation::ZoneAnalysis& written = scene.analysis;
    EXPECT_EQ(drawn.statistics.count, written.statistics.count);
    EXPECT_NEAR(drawn.statistics.mean, written.statistics.mean, 0.02 * written.statistics.mean);
    EXPECT_NEAR(drawn.statistics.uniformity, written.statistics.uniformity, 0.05);
    EXPECT_EQ(written.verification.rows.size(), 9U);
    ExpectSameRows(drawn.verification.rows, written.verification.rows);
    EXPECT_EQ(written.surfaces.size(), 4U);
    ExpectSameRows(drawn.surfaces, written.surfaces);
    EXPECT_EQ(OverallState(drawn), OverallState(written));
}

} // namespace
} // namespace Merivane::Commands
