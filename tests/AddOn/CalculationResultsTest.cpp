#include <algorithm>
#include <string>
#include <vector>

#include "AddOn/CalculationSession.hpp"
#include "AddOn/Commands/CalculateLighting.hpp"
#include "Archicad/ModelSample.hpp"
#include "Host/Elements.hpp"

namespace Merivane::Commands {
namespace {

using Lines = std::vector<std::string>;
using Workbench::CurrentSession;

constexpr const char* ValuesAlone = R"({"item": 22, "marcado": false},
    {"item": 26, "marcado": false}, {"item": 27, "marcado": false}, {"item": 29, "marcado": true})";

/// What a run makes of the results that stand in the plan already.
class EarlierResultsOnThePlan : public Tests::CalculationSession {
protected:
    static void Run() {
        Tests::PrepareAnswers(std::string("[") + DialogAnswer(ValuesAlone) + "]");
        EXPECT_EQ(RunCalculation().end, CalculationEnd::Done);
    }

    static std::int32_t LayerNamed(const std::string& name) {
        for (const auto& [index, layer] : CurrentSession().project.layers) {
            if (layer.name == name) {
                return index;
            }
        }
        return 0;
    }

    /// The elements on a result layer.
    static std::vector<Host::Guid> On(const std::string& layer) {
        std::vector<Host::Guid> guids;
        for (const Workbench::ProjectElement& element : CurrentSession().project.elements) {
            if (element.element.header.layer.value == LayerNamed(layer)) {
                guids.push_back(element.element.header.guid);
            }
        }
        return guids;
    }

    static int CountLines(const std::string& line) {
        const Lines report = Tests::ReportWindow();
        return static_cast<int>(std::count(report.begin(), report.end(), "Vantoro: " + line));
    }
};

TEST_F(EarlierResultsOnThePlan, ThatTheUserLockedStayAndTheNewOnesAreDrawn) {
    Run();
    const std::size_t values = On("Vantoro - Valores").size();
    ASSERT_GT(values, 1U);
    const Host::Guid locked = On("Vantoro - Valores").front();
    for (Workbench::ProjectElement& element : CurrentSession().project.elements) {
        element.element.header.locked |= element.element.header.guid == locked;
    }
    const std::size_t drawn = values + On("Vantoro - Legenda").size() +
                              On("Vantoro - Isolux").size() + On("Vantoro - Cor falsa").size();
    CurrentSession().reportLines.clear();
    Run();
    const std::vector<Host::Guid> now = On("Vantoro - Valores");
    EXPECT_EQ(now.size(), values + 1);
    EXPECT_EQ(std::count(now.begin(), now.end(), locked), 1);
    EXPECT_EQ(
        CountLines(std::to_string(drawn - 1) + " elemento(s) do calculo anterior substituido(s)"),
        1);
    EXPECT_EQ(
        CountLines("1 elemento(s) do calculo anterior nao puderam ser apagados (bloqueados ou "
                   "em camada bloqueada): continuam no desenho"),
        1);
    ASSERT_TRUE(Workbench::Undo());
    EXPECT_EQ(On("Vantoro - Valores").size(), values);
}

TEST_F(EarlierResultsOnThePlan, OnALayerThatTheUserLockedStayAndTheOtherLayersAreDrawnAnew) {
    Run();
    const std::vector<Host::Guid> values = On("Vantoro - Valores");
    const std::vector<Host::Guid> summary = On("Vantoro - Legenda");
    ASSERT_FALSE(summary.empty());
    CurrentSession().project.layers.at(LayerNamed("Vantoro - Valores")).locked = true;
    CurrentSession().reportLines.clear();
    Run();
    EXPECT_EQ(On("Vantoro - Valores"), values);
    EXPECT_EQ(On("Vantoro - Legenda").size(), summary.size());
    EXPECT_NE(On("Vantoro - Legenda"), summary);
    const std::string count = std::to_string(values.size());
    EXPECT_EQ(CountLines(count + " elemento(s) do calculo anterior nao puderam ser apagados "
                                 "(bloqueados ou em camada bloqueada): continuam no desenho"),
              1);
    EXPECT_EQ(CountLines(count + " elemento(s) de desenho nao puderam ser criados na zona Sala"),
              1);
}

TEST_F(EarlierResultsOnThePlan, AreNotSpokenOfInAFirstRun) {
    Run();
    for (const std::string& line : Tests::ReportWindow()) {
        EXPECT_EQ(line.find("calculo anterior"), std::string::npos) << line;
    }
}

TEST_F(EarlierResultsOnThePlan, AreToldAfterTheDrawingIsDone) {
    Run();
    CurrentSession().reportLines.clear();
    Run();
    const Lines report = Tests::ReportWindow();
    const auto replaced = std::find_if(report.begin(), report.end(), [](const std::string& line) {
        return line.ends_with(" elemento(s) do calculo anterior substituido(s)");
    });
    ASSERT_NE(replaced, report.end());
    ASSERT_NE(replaced + 1, report.end());
    EXPECT_TRUE((replaced + 1)->starts_with("Vantoro: Vista da simulacao ")) << *(replaced + 1);
}

TEST_F(EarlierResultsOnThePlan, OfAProjectWithoutASolidFillAreToldOnceForAllZones) {
    Workbench::Project project = Tests::CalculationSample();
    const std::int32_t part = static_cast<std::int32_t>(project.parts.size());
    Tests::AddLamp(project, 30, part, {1.0, 1.0}).element.header.floorIndex = 1;
    for (auto& [index, fill] : project.fills) {
        fill.kind = Host::FillKind::Vector;
    }
    OpenSample(std::move(project));
    ASSERT_EQ(Host::SetSelection(
                  {Tests::NumberedGuid(Tests::RoomZone), Tests::NumberedGuid(Tests::UpperZone)}),
              Host::NoError);
    Tests::PrepareAnswers("[" + DialogAnswer(R"({"item": 22, "marcado": true})") + "]");
    EXPECT_EQ(RunCalculation().drawings.size(), 2U);
    EXPECT_EQ(CountLines("mapa de cor falsa nao desenhado: o projeto nao tem um Preenchimento "
                         "solido"),
              1);
}

} // namespace
} // namespace Merivane::Commands
