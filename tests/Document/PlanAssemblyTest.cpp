#include <gtest/gtest.h>

#include "Document/PlanAssembly.hpp"
#include "SceneTexts.hpp"

namespace Merivane::Document {

namespace {

/// The plans of a document whose values are all 100 lux.
std::vector<FloorPlan> PlansOf(const std::string& text) {
    const Simulation::LightingStudy document = Tests::ReadScene(text);
    Simulation::StudyScene built;
    std::string error;
    EXPECT_TRUE(BuildScene(document, built, error)) << error;
    Simulation::SimulationResult result;
    for (const Simulation::SensorPlane& plane : built.scene.sensorPlanes) {
        Simulation::ZoneResult zone{plane.name, {}, {}};
        zone.illuminance.assign(ActiveNodeCount(plane.grid), 100.0);
        zone.statistics = TaskStatistics(plane.grid, zone.illuminance);
        result.zones.push_back(zone);
    }
    std::vector<Simulation::ZoneAnalysis> analyses;
    for (std::size_t zone = 0; zone < document.zones.size(); ++zone) {
        analyses.push_back(Simulation::AnalyseZone(document, built, result, zone, false));
    }
    return AssemblePlans(document, built, result, analyses, {"nota"});
}

std::string Zone(const std::string& name, double floor, double height) {
    return "{\"nome\": \"" + name + "\", \"contorno\": [[0, 0], [4, 0], [4, 4], [0, 4]], " +
           "\"piso\": " + std::to_string(floor) + ", \"altura\": " + std::to_string(height) +
           ", \"calcularTeto\": true}";
}

std::string Luminaire(double z) {
    return "{\"ies\": \"a.ies\", \"posicao\": [2, 2, " + std::to_string(z) + "]}";
}

std::string Document(const std::string& zones, const std::string& members = "") {
    return "{\"formato\": 1, \"nome\": \"Casa\", \"zonas\": [" + zones + "]" + members + "}";
}

} // namespace

TEST(PlanAssembly, OneFloorHoldsItsZonesWithTheirValues) {
    const std::vector<FloorPlan> plans =
        PlansOf(Document(Zone("B", 0, 3) + ", " + Zone("A", 0.009, 3), ", \"niveis\": [50]"));
    ASSERT_EQ(plans.size(), 1U);
    EXPECT_EQ(plans[0].level, 0.0);
    EXPECT_EQ(plans[0].fileName, "planta");
    const PlanContents& contents = plans[0].contents;
    EXPECT_EQ(contents.title, "Casa");
    EXPECT_EQ(contents.floor, "Nível 0,00 m");
    EXPECT_EQ(contents.levels, (Simulation::LevelList{50}));
    EXPECT_EQ(contents.notes, std::vector<std::string>{"nota"});
    ASSERT_EQ(contents.zones.size(), 2U);
    EXPECT_EQ(contents.zones[0].name, "B");
    EXPECT_EQ(contents.zones[1].name, "A");
    const PlanZone& zone = contents.zones[1];
    EXPECT_EQ(zone.polygon.outer.size(), 4U);
    EXPECT_EQ(zone.values.size(), ActiveNodeCount(zone.grid));
    EXPECT_DOUBLE_EQ(zone.grid.z, 0.759); // the work plane, not the ceiling
    EXPECT_EQ(zone.statistics.mean, 100.0);
    EXPECT_EQ(zone.workPlaneHeight, 0.75);
    EXPECT_EQ(zone.borderBand, 0.5);
}

TEST(PlanAssembly, AZoneCarriesItsVerdict) {
    const std::vector<FloorPlan> plans = PlansOf(
        R"({"formato": 1, "norma": "iso", "zonas": [{"nome": "Sala", "altura": 3, "contorno":
           [[0, 0], [4, 0], [4, 4], [0, 4]], "atividade": "s22.2", "calcularTeto": true}]})");
    const PlanVerdict& verdict = plans[0].contents.zones[0].verdict;
    EXPECT_EQ(verdict.activity, "Escrever, teclar, ler, processar dados");
    EXPECT_EQ(verdict.standard, "ISO/CIE 8995-1:2002");
    ASSERT_FALSE(verdict.rows.empty());
    EXPECT_EQ(verdict.rows[0].calculated, "100 lx");
    EXPECT_EQ(verdict.notes, std::vector<std::string>{"UGR: nenhuma luminária Vantoro sobre a "
                                                      "Zona."});
    EXPECT_EQ(verdict.surfaces.size(), 2U);
}

TEST(PlanAssembly, FloorsGoFromTheLowestUp) {
    const std::vector<FloorPlan> plans = PlansOf(Document(
        Zone("Alto", 3, 2.8) + ", " + Zone("Baixo", 0, 2.8) + ", " + Zone("Porao", -3, 2.5)));
    ASSERT_EQ(plans.size(), 3U);
    EXPECT_EQ(plans[0].contents.zones[0].name, "Porao");
    EXPECT_EQ(plans[0].contents.floor, "Nível -3,00 m");
    EXPECT_EQ(plans[0].fileName, "planta-1");
    EXPECT_EQ(plans[1].contents.zones[0].name, "Baixo");
    EXPECT_EQ(plans[2].contents.zones[0].name, "Alto");
    EXPECT_EQ(plans[2].fileName, "planta-3");
}

TEST(PlanAssembly, ALuminaireStandsOnTheFloorWhoseRoomsHoldIt) {
    struct Case {
        double z;
        std::size_t lower;
        std::size_t upper;
    };
    const Case cases[] = {
        {-0.02, 0, 0}, {0.0, 1, 0}, {2.8, 1, 0}, {2.9, 1, 0},  // let into the ceiling
        {3.0, 0, 1},   {5.8, 0, 1}, {6.3, 0, 1}, {6.31, 0, 0}, // on the next floor, above the roof
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.z);
        const std::vector<FloorPlan> plans =
            PlansOf(Document(Zone("Baixo", 0, 2.8) + ", " + Zone("Alto", 3, 2.8),
                             ", \"luminarias\": [" + Luminaire(c.z) + "]"));
        ASSERT_EQ(plans.size(), 2U);
        EXPECT_EQ(plans[0].contents.luminaires.size(), c.lower);
        EXPECT_EQ(plans[1].contents.luminaires.size(), c.upper);
    }
}

TEST(PlanAssembly, ASplitLevelKeepsTheLuminairesOfItsCeiling) {
    const std::vector<FloorPlan> plans =
        PlansOf(Document(Zone("Sala", 0, 2.8) + ", " + Zone("Palco", 0.5, 2.3),
                         ", \"luminarias\": [" + Luminaire(2.8) + "]"));
    ASSERT_EQ(plans.size(), 2U);
    EXPECT_EQ(plans[0].contents.luminaires.size(), 1U);
    EXPECT_EQ(plans[1].contents.luminaires.size(), 1U);
}

TEST(PlanAssembly, CutsOneMetreAboveTheFloorOrHalfWayUpALowRoom) {
    const auto wall = [](double bottom, double top) {
        const std::string low = std::to_string(bottom) + "], ";
        const std::string high = std::to_string(top) + "]";
        return std::string(", \"materiais\": [{\"nome\": \"M\", \"refletancia\": 0.5}], ") +
               "\"superficies\": [{\"material\": \"M\", \"vertices\": [[0, 0, " + low + "[4, 0, " +
               low + "[4, 0, " + high + ", [0, 0, " + high + "]}]";
    };
    EXPECT_EQ(PlansOf(Document(Zone("A", 3, 3), wall(3.9, 4.1)))[0].contents.segments.size(), 1U);
    EXPECT_EQ(PlansOf(Document(Zone("A", 3, 3), wall(3, 3.9)))[0].contents.segments.size(), 0U);
    EXPECT_EQ(PlansOf(Document(Zone("A", 0, 1.6), wall(0.7, 0.9)))[0].contents.segments.size(), 1U);
}

TEST(PlanAssembly, WithoutZonesThereIsNoPlan) {
    EXPECT_TRUE(PlansOf(R"({"formato": 1, "pontos": [{"posicao": [0, 0, 1]}]})").empty());
}

} // namespace Merivane::Document
