#include <gtest/gtest.h>

#include "Document/SceneBuild.hpp"
#include "Document/ZoneExplanation.hpp"
#include "SceneTexts.hpp"
#include "Simulation/Study/ZoneAnalysis.hpp"

namespace Merivane::Document {

namespace {

constexpr double OfObservers = 80.0; // lux on their eyes, of which 30 are direct

struct Calculated {
    Simulation::LightingStudy document;
    Simulation::StudyScene built;
    Simulation::SimulationResult result;
};

/// A document with every point of every plane at 400 lux.
Calculated Calculate(const std::string& text) {
    Calculated calculated;
    calculated.document = Tests::ReadScene(text);
    std::string error;
    EXPECT_TRUE(BuildScene(calculated.document, calculated.built, error)) << error;
    for (const Simulation::SensorPlane& plane : calculated.built.scene.sensorPlanes) {
        Simulation::ZoneResult zone{plane.name, {}, {}};
        zone.illuminance.assign(ActiveNodeCount(plane.grid), 400.0);
        zone.statistics = TaskStatistics(plane.grid, zone.illuminance);
        calculated.result.zones.push_back(zone);
    }
    calculated.result.pointIlluminance.assign(calculated.built.scene.points.size(), OfObservers);
    calculated.result.pointDirectIlluminance.assign(calculated.built.scene.points.size(), 30.0);
    return calculated;
}

Simulation::ZoneAnalysis Analyse(const Calculated& calculated, std::size_t zone = 0,
                                 bool explain = false) {
    return Simulation::AnalyseZone(calculated.document, calculated.built, calculated.result, zone,
                                   explain);
}

/// A square room of 4 m with an office's luminaire of 0.1 x 0.2 m and these members of its Zone.
std::string Room(const std::string& zoneMembers, const std::string& members = "") {
    return R"({"formato": 1, "luminarias": [{"nome": "L", "ies": "a.ies", "posicao": [2, 3, 2.8],
               "fatorDeManutencao": 0.5}],
               "zonas": [{"nome": "Sala", "altura": 3, "contorno": [[0, 0], [4, 0], [4, 4],
               [0, 4]], "espacamento": 0.5)" +
           zoneMembers + "}]" + members + "}";
}

const std::string Office = R"(, "atividade": "s22.2")";

std::string StateOf(const Simulation::ZoneAnalysis& analysis, const std::string& criterion) {
    for (const Simulation::VerificationRow& row : analysis.verification.rows) {
        if (row.criterion == criterion) {
            return Simulation::RowState(row);
        }
    }
    return "";
}

} // namespace

TEST(ZoneAnalysis, VerifiesAgainstTheActivityAndTheZonesOwnValues) {
    EXPECT_EQ(StateOf(Analyse(Calculate(Room(Office))), "Iluminância Em"), "NÃO ATENDE");
    const Simulation::ZoneAnalysis own = Analyse(Calculate(Room(Office + R"(, "em": 400)")));
    EXPECT_EQ(StateOf(own, "Iluminância Em"), "ATENDE");
    ASSERT_NE(own.task, nullptr);
    EXPECT_EQ(own.task->id, "s22.2");
    EXPECT_EQ(own.statistics.mean, 400.0);
}

TEST(ZoneAnalysis, TakesTheLimitOfGlareFromTheActivity) {
    const Simulation::ZoneAnalysis analysis = Analyse(Calculate(Room(Office)));
    EXPECT_TRUE(analysis.glare.hasUgr);
    EXPECT_EQ(analysis.verification.input.ugrLimit, 19);
    EXPECT_EQ(analysis.verification.input.ugr, analysis.glare.ugr);
    EXPECT_NE(StateOf(analysis, "Ofuscamento UGR"), "");
}

TEST(ZoneAnalysis, TellsTheOverallState) {
    EXPECT_EQ(Simulation::OverallState(Analyse(Calculate(Room("")))), "");
    EXPECT_EQ(Simulation::OverallState(Analyse(Calculate(Room(Office)))), "NÃO ATENDE");
    const std::string easy = R"(, "atividade": "s1.3", "em": 300)";
    EXPECT_EQ(Simulation::OverallState(Analyse(Calculate(Room(easy)))), "ATENDE");
    EXPECT_TRUE(Simulation::MeetsRequirements(Analyse(Calculate(Room("")))));
    EXPECT_FALSE(Simulation::MeetsRequirements(Analyse(Calculate(Room(Office)))));
}

TEST(ZoneAnalysis, HasGlareWithoutActivityToo) {
    const Simulation::ZoneAnalysis analysis = Analyse(Calculate(Room("")));
    EXPECT_EQ(analysis.task, nullptr);
    EXPECT_TRUE(analysis.verification.rows.empty());
    EXPECT_TRUE(analysis.glare.hasUgr);
    EXPECT_EQ(analysis.glare.observers.size(), 4U);
}

TEST(ZoneAnalysis, GivesObserversTheReflectedLightAlone) {
    Calculated calculated = Calculate(Room(""));
    for (const auto& record : Analyse(calculated).glare.observers) {
        EXPECT_EQ(record.observer.verticalIlluminance, 50.0);
        EXPECT_NEAR(record.result.background, 50.0 / 0.5 / 3.14159265358979, 1e-9);
    }
    calculated.result.pointDirectIlluminance.assign(4, OfObservers + 1.0); // two estimates differ
    for (const auto& record : Analyse(calculated).glare.observers) {
        EXPECT_EQ(record.observer.verticalIlluminance, 0.0);
        EXPECT_FALSE(record.result.valid);
    }
}

TEST(ZoneAnalysis, GivesEachZoneItsOwnObserversAndValues) {
    Calculated calculated = Calculate(R"({"formato": 1, "zonas": [
        {"nome": "A", "altura": 3, "contorno": [[0, 0], [4, 0], [4, 4], [0, 4]]},
        {"nome": "B", "altura": 3, "contorno": [[5, 0], [9, 0], [9, 4], [5, 4]]}],
        "luminarias": [{"ies": "a.ies", "posicao": [7, 2, 3]}],
        "observadores": [{"nome": "O", "posicao": [6, 2, 1.2], "direcao": [1, 0]}]})");
    calculated.result.zones[1].statistics.mean = 123.0;
    EXPECT_TRUE(Analyse(calculated, 0).glare.observers.empty()); // no luminaire stands over it
    const Simulation::ZoneAnalysis second = Analyse(calculated, 1);
    ASSERT_EQ(second.glare.observers.size(), 5U);
    EXPECT_EQ(second.glare.observers[4].observer.observer.label, "O");
    EXPECT_EQ(second.statistics.mean, 123.0);
}

TEST(ZoneAnalysis, KeepsTheRowsOfObserversOnlyWhereTheyAreAskedFor) {
    const Calculated calculated = Calculate(Room(""));
    EXPECT_TRUE(Analyse(calculated).glare.observers[0].terms.empty());
    const Simulation::ZoneAnalysis explained = Analyse(calculated, 0, true);
    const ExplainedRoom room = ExplainZone("Sala", explained, calculated.built.scene);
    EXPECT_EQ(room.title, "Ofuscamento na Zona \"Sala\", posições reais");
    ASSERT_EQ(room.lights.size(), 1U);
    EXPECT_EQ(room.lights[0].name, "L");
    EXPECT_DOUBLE_EQ(room.lights[0].center.y, 3.0);
    ASSERT_EQ(room.observers.size(), 4U);
    EXPECT_EQ(room.observers[0].terms.size(), 1U);
}

TEST(ZoneAnalysis, ComparesTheSurfacesThatWereCalculated) {
    EXPECT_TRUE(Analyse(Calculate(Room(""))).surfaces.empty());
    EXPECT_EQ(Analyse(Calculate(Room(R"(, "calcularTeto": true)"))).surfaces.size(), 2U);
}

} // namespace Merivane::Document
