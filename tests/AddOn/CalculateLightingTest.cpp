#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "AddOn/AddOnState.hpp"
#include "AddOn/CalculationSession.hpp"
#include "AddOn/CommandTable.hpp"
#include "AddOn/Commands/CalculateLighting.hpp"
#include "Archicad/ModelSample.hpp"
#include "Archicad/ResultLayers.hpp"
#include "Archicad/ZoneTaskStorage.hpp"
#include "Host/Elements.hpp"
#include "Host/Stories.hpp"
#include "Support/Variable.hpp"
#include "Text/NativePath.hpp"

namespace Merivane::Commands {
namespace {

using Lines = std::vector<std::string>;
using Workbench::CurrentSession;

constexpr const char* NoZone = "!Vantoro: Nenhuma Zona para calcular. Selecione as Zonas (ou deixe "
                               "a selecao vazia para usar todas do pavimento atual).";
constexpr const char* NoLuminaire =
    "!Vantoro: Nenhuma luminaria Vantoro ligada no(s) pavimento(s) das Zonas. Crie luminarias com "
    "\"Importar luminaria\" ou \"Adicionar fotometria IES\".";
constexpr const char* NoRadiance = "!Vantoro: Radiance nao encontrado ou incompleto. Rode "
                                   "\"Diagnostico: verificar instalacao do Radiance\".";

/// Titles of the dialogs that were shown, in order.
Lines ShownTitles() {
    Lines titles;
    for (const auto& shown : CurrentSession().userInterface.shownDialogs) {
        titles.push_back(shown.state.title);
    }
    return titles;
}

bool IsResultLayer(const std::string& name) {
    return std::find(Archicad::ResultLayerNames.begin(), Archicad::ResultLayerNames.end(), name) !=
           Archicad::ResultLayerNames.end();
}

int CountResults() {
    int count = 0;
    for (const auto& [place, elements] : Tests::CountElements(CurrentSession().project)) {
        count += IsResultLayer(place.first) ? elements : 0;
    }
    return count;
}

/// What the run's progress file says.
std::string ProgressText(const std::filesystem::path& folder) {
    return Tests::ReadBytes(folder / "Vantoro" / "progresso.txt");
}

class MainCommand : public Tests::CalculationSession {
protected:
    static Calculation Run(const std::string& moreItems = "") {
        Tests::PrepareAnswers("[" + DialogAnswer(moreItems) + "]");
        return RunCalculation();
    }

    static void Select(const std::vector<std::uint32_t>& numbers) {
        std::vector<Host::Guid> guids;
        guids.reserve(numbers.size());
        for (const std::uint32_t number : numbers) {
            guids.push_back(Tests::NumberedGuid(number));
        }
        ASSERT_EQ(Host::SetSelection(guids), Host::NoError);
    }

    static Workbench::Project Without(Host::ElementType type) {
        Workbench::Project project = Tests::CalculationSample();
        std::erase_if(project.elements, [type](const Workbench::ProjectElement& element) {
            return element.element.header.type == type;
        });
        return project;
    }

    /// Nothing was drawn and nothing can be undone.
    static void ExpectUntouched(const Workbench::Project& before) {
        EXPECT_TRUE(CurrentSession().project.elements == before.elements);
        EXPECT_TRUE(CurrentSession().project.views == before.views);
        EXPECT_TRUE(Workbench::UndoNames().empty());
    }
};

TEST_F(MainCommand, StandsInTheMenu) {
    const CommandRow* const row = FindCommand(32505);
    ASSERT_TRUE(row);
    EXPECT_EQ(row->run, CalculateLighting);
}

TEST_F(MainCommand, GoesFromZonesToADrawnPlan) {
    const Calculation calculation = Run();
    Tests::ExpectAnswered();
    EXPECT_EQ(calculation.end, CalculationEnd::Done);
    ASSERT_EQ(calculation.drawings.size(), 1U);
    EXPECT_GT(calculation.analyses[0].statistics.mean, 1.0);
    EXPECT_GT(CountResults(), 5);
    EXPECT_EQ(Workbench::UndoNames(), Lines{"Vantoro: resultados do calculo"});

    const Lines report = Tests::ReportWindow();
    EXPECT_TRUE(Tests::HoldsLine(
        report, "Vantoro: nenhuma Zona selecionada: calculando todas as 1 do pavimento atual"));
    EXPECT_TRUE(Tests::HoldsLine(report, "Vantoro: calculo: 1 zona(s), 2 luminaria(s)"));
    EXPECT_TRUE(Tests::HoldsLine(
        report, "Vantoro: Vista da simulacao criada no Mapa de Vistas para o pavimento Terreo"));
    EXPECT_TRUE(Tests::HoldsLine(
        report, "Vantoro: resultados nas camadas \"Vantoro - Isolux\", \"Vantoro - Cor falsa\", "
                "\"Vantoro - Valores\" e \"Vantoro - Legenda\"; arquivos do calculo em " +
                    (Folder() / "Vantoro" / "calculo").string()));
}

TEST_F(MainCommand, TellsItsProgressInOrder) {
    Run();
    const std::string progress = ProgressText(Folder());
    std::size_t from = 0;
    for (const char* const step :
         {"=== calculo em planta\n", "dialogos aceitos; coletando geometria\n",
          "geometria coletada: ", " triangulo(s)\n", "radiance: 1 malha(s)\n",
          "radiance concluido\n", "zona Sala: curvas e faixas prontas\n",
          "desenho concluido (erro 0)\n"}) {
        const std::size_t found = progress.find(step, from);
        EXPECT_NE(found, std::string::npos) << step << " is not behind " << from << " of\n"
                                            << progress;
        from = found == std::string::npos ? from : found;
    }
    EXPECT_EQ(progress.find("UGR pronto"), std::string::npos);
    EXPECT_EQ(progress.find("superficie(s)"), std::string::npos);
}

TEST_F(MainCommand, TellsSurfacesAndGlareWhereTheyAreCalculated) {
    Tests::PrepareAnswers(R"([{"dialogo": 32620, "itens": []}])");
    const Calculation calculation = RunCalculation();
    EXPECT_EQ(calculation.built.planes.size(), 7U); // work plane, four walls, ceiling, floor
    EXPECT_EQ(calculation.built.observers.size(), 4U);
    const std::string progress = ProgressText(Folder());
    EXPECT_NE(progress.find("radiance: 7 malha(s)\n"), std::string::npos);
    EXPECT_NE(progress.find("zona Sala: 6 superficie(s) prontas\n"), std::string::npos);
    EXPECT_NE(progress.find("zona Sala: UGR pronto\n"), std::string::npos);
}

TEST_F(MainCommand, AsksInItsOrder) {
    Run();
    EXPECT_EQ(ShownTitles(), (Lines{"Vantoro: calcular iluminacao",
                                    "Vantoro: verificação pela NBR ISO/CIE 8995-1 / ISO/CIE 8995-1",
                                    "Vantoro: refletancias das superficies"}));
}

TEST_F(MainCommand, CountsZonesAndLuminairesInTheDialog) {
    Run();
    const auto& shown = CurrentSession().userInterface.shownDialogs;
    ASSERT_FALSE(shown.empty());
    EXPECT_EQ(Workbench::FindItem(shown.front().state, 3)->text,
              "1 zona(s) e 2 luminaria(s) Vantoro ligada(s) no(s) pavimento(s) dessas zonas.");
}

TEST_F(MainCommand, AsksNoActivitiesWithoutVerification) {
    const Calculation calculation = Run(R"({"item": 17, "marcado": false})");
    EXPECT_EQ(calculation.end, CalculationEnd::Done);
    EXPECT_EQ(ShownTitles(),
              (Lines{"Vantoro: calcular iluminacao", "Vantoro: refletancias das superficies"}));
    EXPECT_TRUE(calculation.analyses[0].verification.rows.empty());
}

TEST_F(MainCommand, CalculatesTheZonesOfTheCurrentStoryWhenNoneIsSelected) {
    EXPECT_EQ(Run().zones.at(0).name, "Sala");
    OpenSample();
    Select({Tests::FirstLamp}); // another element is no choice of Zones
    const Calculation calculation = Run();
    ASSERT_EQ(calculation.zones.size(), 1U);
    EXPECT_EQ(calculation.zones[0].name, "Sala");
}

TEST_F(MainCommand, RefusesAStoryWithoutZones) {
    const Workbench::Project project = Without(Host::ElementType::Zone);
    OpenSample(project);
    EXPECT_EQ(RunCalculation().end, CalculationEnd::Refused);
    EXPECT_EQ(Tests::ReportWindow().back(), NoZone);
    ExpectUntouched(project);
}

TEST_F(MainCommand, AsksNothingWithoutALuminaireOnTheZonesStories) {
    Select({Tests::UpperZone}); // the lamps stand below
    EXPECT_EQ(RunCalculation().end, CalculationEnd::Refused);
    EXPECT_EQ(Tests::ReportWindow().back(), NoLuminaire);
    EXPECT_TRUE(ShownTitles().empty());
    ExpectUntouched(Tests::CalculationSample());
}

TEST_F(MainCommand, RefusesWithoutRadiance) {
    const Tests::Variable path("PATH", "/usr/bin:/bin");
    const Tests::Variable radiance("RADIANCE", std::nullopt);
    CurrentSession().options.ownLocation = Text::WidePath(Folder() / "Vantoro.apx");
    EXPECT_EQ(RunCalculation().end, CalculationEnd::Refused);
    EXPECT_EQ(Tests::ReportWindow().back(), NoRadiance);
    EXPECT_TRUE(ShownTitles().empty());
}

TEST_F(MainCommand, LeavesTheProjectAloneWhenADialogIsCancelled) {
    const struct {
        const char* name;
        std::string answers;
        bool keepsActivities;
    } cases[] = {
        {"settings", R"([{"dialogo": 32620, "botao": 2}])", false},
        {"activities", "[" + DialogAnswer() + R"(, {"dialogo": 32640, "fechar": true}])", false},
        {"reflectances",
         "[" + DialogAnswer() + R"(, {"dialogo": 32640}, {"dialogo": 32630, "botao": 2}])", true},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        OpenSample();
        const Workbench::Project before = CurrentSession().project;
        Tests::PrepareAnswers(c.answers);
        EXPECT_EQ(RunCalculation().end, CalculationEnd::Cancelled);
        Tests::ExpectAnswered();
        ExpectUntouched(before);
        EXPECT_EQ(CurrentSession().project.layers, before.layers);
        EXPECT_EQ(CurrentSession().project.data != before.data, c.keepsActivities);
        EXPECT_FALSE(std::filesystem::exists(Folder() / "Vantoro" / "calculo"));
    }
}

TEST_F(MainCommand, DrawsNothingWhenTheUserStopsRadiance) {
    const Workbench::Project before = CurrentSession().project;
    CurrentSession().options.cancelAsked = [] { return true; };
    EXPECT_EQ(Run().end, CalculationEnd::Cancelled);
    EXPECT_EQ(Tests::ReportWindow().back(), "Vantoro: calculo cancelado - nada foi desenhado.");
    ExpectUntouched(before);
}

TEST_F(MainCommand, TellsOfARunThatFails) {
    const Workbench::Project before = CurrentSession().project;
    std::filesystem::create_directories(Folder() / "Vantoro");
    Tests::WriteBytes(Folder() / "Vantoro" / "calculo", "a file where the folder should be");
    EXPECT_EQ(Run().end, CalculationEnd::Failed);
    EXPECT_TRUE(Tests::ReportWindow().back().starts_with("!Vantoro: O calculo falhou: "));
    ExpectUntouched(before);
}

TEST_F(MainCommand, StopsWhereThePlanCannotBeShown) {
    for (const char* const operation : {"ChangeWindow", "ChangeActiveFloor"}) {
        SCOPED_TRACE(operation);
        OpenSample();
        const Workbench::Project before = CurrentSession().project;
        Workbench::FailCall(operation, 1, Host::GeneralError);
        const Calculation calculation = Run();
        EXPECT_EQ(calculation.end, CalculationEnd::Failed);
        EXPECT_FALSE(calculation.drawings.empty());
        EXPECT_EQ(Tests::ReportWindow().back(),
                  "!Vantoro: Nao foi possivel ativar a Planta Baixa para desenhar os resultados.");
        ExpectUntouched(before);
    }
}

TEST_F(MainCommand, ShowsThePlanOfTheZonesStory) {
    Workbench::Project project = Tests::CalculationSample();
    for (Workbench::ProjectElement& element : project.elements) {
        if (element.element.header.type == Host::ElementType::Lamp) {
            element.element.header.floorIndex = 1;
        }
    }
    OpenSample(std::move(project));
    Select({Tests::UpperZone});
    EXPECT_EQ(Run().end, CalculationEnd::Done);
    std::vector<Host::Story> stories;
    std::int16_t floor = 0;
    EXPECT_EQ(Host::GetStories(stories, floor), Host::NoError);
    EXPECT_EQ(floor, 1);
}

TEST_F(MainCommand, KeepsTheActivitiesInTheProject) {
    const Calculation calculation = Run();
    Simulation::ReferenceStandard standard = Simulation::ReferenceStandard::International;
    const Simulation::ZoneRequirementMap stored = Archicad::LoadZoneTasks(standard);
    EXPECT_EQ(standard, Simulation::ReferenceStandard::Brazilian);
    ASSERT_EQ(stored.size(), 1U);
    EXPECT_EQ(stored.begin()->first, Archicad::ZoneKey(Tests::NumberedGuid(Tests::RoomZone)));
    EXPECT_EQ(stored.begin()->second, calculation.study.zones[0].task.requirement);
}

TEST_F(MainCommand, GoesOnWhereTheActivitiesCannotBeKept) {
    Workbench::FailCall("StoreProjectData", 1, Host::OutOfMemory);
    EXPECT_EQ(Run().end, CalculationEnd::Done);
    EXPECT_TRUE(Tests::HoldsLine(Tests::ReportWindow(),
                                 "Vantoro: Guardar as atividades das Zonas no projeto failed: "
                                 "APIERR_MEMFULL (0x81060002)"));
}

TEST_F(MainCommand, ReplacesThePreviousRun) {
    Run();
    const Tests::ElementCounts first = Tests::CountElements(CurrentSession().project);
    const int drawn = CountResults();
    Run();
    EXPECT_EQ(Tests::CountElements(CurrentSession().project), first);
    const Lines report = Tests::ReportWindow();
    EXPECT_TRUE(Tests::HoldsLine(report, "Vantoro: " + std::to_string(drawn) +
                                             " elemento(s) do calculo anterior substituido(s)"));
    EXPECT_TRUE(Tests::HoldsLine(report, "Vantoro: Vista da simulacao do pavimento Terreo "
                                         "atualizada (nome e Combinacao de Camadas)"));
    EXPECT_EQ(CurrentSession().project.views.size(), 1U);
}

TEST_F(MainCommand, IsUndoneInOneStep) {
    const std::vector<Workbench::ProjectElement> before = CurrentSession().project.elements;
    Run();
    EXPECT_TRUE(Workbench::Undo());
    EXPECT_TRUE(CurrentSession().project.elements == before);
    EXPECT_TRUE(Workbench::UndoNames().empty());
}

TEST_F(MainCommand, RemembersTheSettingsForTheNextCall) {
    Run(R"({"item": 33, "texto": "100; 200"})");
    EXPECT_EQ(CurrentAddOnState().calculation.levels, (Simulation::LevelList{100.0, 200.0}));
}

TEST_F(MainCommand, TakesTheCeilingOfTheModel) {
    Workbench::Project project = Tests::CalculationSample();
    Tests::AddSlab(project, 5, {Tests::PlanRectangle(0.0, 0.0, 2.0, 1.2)}, 2.7, 0.1);
    OpenSample(std::move(project));
    const Calculation calculation = Run(R"({"item": 19, "marcado": true})");
    EXPECT_NEAR(calculation.zones[0].height, 2.6, 1e-9);
    EXPECT_NEAR(calculation.study.zones[0].height, 2.6, 1e-9);
    EXPECT_EQ(calculation.ceilings.at(0).zoneHeight, 3.0);
    EXPECT_NEAR(calculation.ceilings[0].detected->height, 2.6, 1e-9);
}

TEST_F(MainCommand, TellsTheReaderOfLuminairesLeftOutAndOfAPlaneInTheCeiling) {
    Workbench::Project project = Tests::CalculationSample();
    for (Workbench::ProjectElement& element : project.elements) {
        if (element.element.header.guid == Tests::NumberedGuid(Tests::FirstLamp)) {
            element.memo.parameters = project.parts[0].parameters;
            Tests::SetNumber(element.memo.parameters, "mvLightOn", 0.0);
        }
    }
    OpenSample(std::move(project));
    const Calculation calculation = Run(R"({"item": 6, "valor": 3.0})");
    EXPECT_TRUE(Tests::HoldsLine(calculation.notices,
                                 "1 luminaria(s) desligada(s) (mvLightOn) fora do calculo"));
    const std::string plane = "Zona \"Sala\": o plano de trabalho a 3,00 m não fica abaixo do "
                              "teto, a 3,00 m";
    EXPECT_TRUE(Tests::HoldsLine(calculation.notices, plane));
    EXPECT_TRUE(Tests::HoldsLine(Tests::ReportWindow(), "Vantoro: " + plane));
}

TEST_F(MainCommand, TellsOfPointsThatNoLightReaches) {
    Workbench::Project project = Tests::CalculationSample();
    Workbench::ProjectElement& box = Tests::AddElement(project, 7, Host::ElementType::Slab);
    box.geometry = Workbench::SlabGeometry{
        {Tests::PlanRectangle(0.8, 0.8, 0.4, 0.4)}, 1.0, 1.0, {1}, {2}, {3}};
    OpenSample(std::move(project));
    const Calculation calculation = Run();
    EXPECT_TRUE(Tests::HoldsLine(calculation.notices,
                                 "Zona \"Sala\": 16 ponto(s) sem luz alguma, por certo dentro de "
                                 "móveis ou pilares que passam do plano de trabalho"));
}

TEST_F(MainCommand, TellsOfAZoneWithoutRoomForAPoint) {
    // The four nodes of its lattice are the corners of the box around the diamond.
    Workbench::Project project = Tests::CalculationSample();
    const Host::Contour diamond = {{{3.04, 0.0}, {3.08, 0.04}, {3.04, 0.08}, {3.0, 0.04}}, {}};
    Tests::AddZone(project, 6, "Losango", {diamond});
    OpenSample(std::move(project));
    const Calculation calculation = Run();
    EXPECT_EQ(calculation.end, CalculationEnd::Done);
    EXPECT_TRUE(Tests::HoldsLine(calculation.notices,
                                 "Zona \"Losango\": nenhum ponto de cálculo cabe no contorno"));
}

} // namespace
} // namespace Merivane::Commands
