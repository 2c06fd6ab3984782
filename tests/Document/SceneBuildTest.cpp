#include <gtest/gtest.h>

#include "Document/SceneBuild.hpp"
#include "SceneTexts.hpp"
#include "Support/Places.hpp"
#include "Text/Utf8.hpp"

namespace Merivane::Document {

using Tests::ReadScene;
using Tests::SceneText;
using Tests::ZoneText;

namespace {

Simulation::StudyScene Build(const Simulation::LightingStudy& document) {
    Simulation::StudyScene built;
    std::string error;
    EXPECT_TRUE(BuildScene(document, built, error)) << error;
    return built;
}

std::string BuildError(const Simulation::LightingStudy& document) {
    Simulation::StudyScene built;
    std::string error;
    return BuildScene(document, built, error) ? "" : error;
}

} // namespace

TEST(SceneBuild, LaysTheWorkPlaneOfAZone) {
    const Simulation::StudyScene built = Build(ReadScene(ZoneText(
        R"("contorno": [[0, 0], [4, 0], [4, 3], [0, 3]], "altura": 3, "piso": 6,
           "espacamento": 0.5)")));
    ASSERT_EQ(built.scene.sensorPlanes.size(), 1U);
    const Simulation::SensorPlane& plane = built.scene.sensorPlanes[0];
    EXPECT_EQ(plane.name, "Sala");
    EXPECT_FALSE(plane.vertical);
    EXPECT_FALSE(plane.facesDown);
    EXPECT_DOUBLE_EQ(plane.grid.z, 6.75);
    EXPECT_EQ(plane.grid.columns, 9);
    EXPECT_EQ(plane.grid.rows, 7);
    ASSERT_EQ(built.planes.size(), 1U);
    EXPECT_EQ(built.planes[0].kind, Simulation::PlaneKind::WorkPlane);
}

TEST(SceneBuild, AddsWallsCeilingAndFloorWhereTheyAreAskedFor) {
    const Simulation::StudyScene built = Build(ReadScene(R"({"formato": 1, "zonas": [
        {"nome": "A", "altura": 3, "contorno": [[0, 0], [4, 0], [4, 3], [0, 3]],
         "calcularParedes": true, "calcularTeto": true, "calcularPiso": true},
        {"nome": "B", "altura": 3, "contorno": [[5, 0], [9, 0], [9, 3]], "calcularTeto": true}]})"));
    struct Expected {
        std::string name;
        std::size_t zone;
        Simulation::PlaneKind kind;
        int wall;
    };
    const std::vector<Expected> expected = {{"A", 0, Simulation::PlaneKind::WorkPlane, 0},
                                            {"A parede 1", 0, Simulation::PlaneKind::Wall, 1},
                                            {"A parede 2", 0, Simulation::PlaneKind::Wall, 2},
                                            {"A parede 3", 0, Simulation::PlaneKind::Wall, 3},
                                            {"A parede 4", 0, Simulation::PlaneKind::Wall, 4},
                                            {"A teto", 0, Simulation::PlaneKind::Ceiling, 0},
                                            {"A piso", 0, Simulation::PlaneKind::Floor, 0},
                                            {"B", 1, Simulation::PlaneKind::WorkPlane, 0},
                                            {"B teto", 1, Simulation::PlaneKind::Ceiling, 0}};
    ASSERT_EQ(built.planes.size(), expected.size());
    ASSERT_EQ(built.scene.sensorPlanes.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        SCOPED_TRACE(expected[i].name);
        EXPECT_EQ(built.scene.sensorPlanes[i].name, expected[i].name);
        EXPECT_EQ(built.planes[i].zone, expected[i].zone);
        EXPECT_EQ(built.planes[i].kind, expected[i].kind);
        EXPECT_EQ(built.planes[i].wall, expected[i].wall);
        EXPECT_GT(Simulation::ActiveNodeCount(built.scene.sensorPlanes[i].grid), 0U);
    }
    EXPECT_TRUE(built.scene.sensorPlanes[1].vertical);
    EXPECT_EQ(built.scene.sensorPlanes[1].normalY, 1.0); // the wall along y = 0 looks into the room
    EXPECT_TRUE(built.scene.sensorPlanes[5].facesDown);
    EXPECT_DOUBLE_EQ(built.scene.sensorPlanes[5].grid.z, 2.99);
    EXPECT_DOUBLE_EQ(built.scene.sensorPlanes[6].grid.z, 0.01);
}

TEST(SceneBuild, CarriesTheRestOfTheDocument) {
    const Simulation::StudyScene built = Build(ReadScene(SceneText(
        R"("materiais": [{"nome": "M", "refletancia": 0.3}],
           "superficies": [{"material": "M", "vertices": [[0, 0, 0], [1, 0, 0], [0, 1, 0]]}],
           "luminarias": [{"ies": "a.ies", "posicao": [1, 1, 3]}],
           "pontos": [{"posicao": [1, 1, 1]}])")));
    EXPECT_EQ(built.scene.materials.size(), 1U);
    EXPECT_EQ(built.scene.surfaces.size(), 1U);
    EXPECT_EQ(built.scene.luminaires.size(), 1U);
    EXPECT_EQ(built.pointCount, 1U);
    ASSERT_FALSE(built.scene.points.empty());
    EXPECT_EQ(built.scene.points[0].z, 1.0);
    EXPECT_EQ(built.notices, std::vector<std::string>());
}

TEST(SceneBuild, AddsTheViewsOfTheObserversAtMidWallBehindThePoints) {
    const Simulation::StudyScene built =
        Build(ReadScene(SceneText(R"("pontos": [{"posicao": [1, 1, 1]}])"))); // a square of 4 m
    ASSERT_EQ(built.scene.points.size(), 5U);
    ASSERT_EQ(built.observers.size(), 4U);
    for (std::size_t i = 0; i < 4; ++i) {
        const Simulation::StudyObserver& seen = built.observers[i];
        EXPECT_EQ(seen.zone, 0U);
        EXPECT_EQ(seen.point, i + 1);
        EXPECT_FALSE(seen.placed);
        const Simulation::ScenePoint& view = built.scene.points[seen.point];
        EXPECT_EQ(view.x, seen.observer.x);
        EXPECT_EQ(view.y, seen.observer.y);
        EXPECT_EQ(view.z, 1.2);
        EXPECT_EQ(view.directionX, seen.observer.dx);
        EXPECT_EQ(view.directionY, seen.observer.dy);
        EXPECT_EQ(view.directionZ, 0.0);
    }
}

TEST(SceneBuild, GivesAPlacedObserverToEveryZoneThatHoldsIt) {
    const Simulation::StudyScene built = Build(ReadScene(R"({"formato": 1, "zonas": [
        {"nome": "A", "altura": 3, "contorno": [[0, 0], [4, 0], [4, 4], [0, 4]]},
        {"nome": "B", "altura": 3, "contorno": [[2, 0], [8, 0], [8, 4], [2, 4]]}],
        "observadores": [
            {"nome": "só em B", "posicao": [7, 2, 1.2], "direcao": [1, 0]},
            {"nome": "nas duas", "posicao": [3, 2, 1.2], "direcao": [0, 1]},
            {"nome": "só em A", "posicao": [1, 2, 1.2], "direcao": [1, 0]}]})"));
    struct Expected {
        std::size_t zone;
        std::string label;
    };
    const Expected expected[] = {{0, "nas duas"}, {0, "só em A"}, {1, "só em B"}, {1, "nas duas"}};
    std::vector<Simulation::StudyObserver> placed;
    for (const Simulation::StudyObserver& seen : built.observers) {
        if (seen.placed) {
            placed.push_back(seen);
        }
    }
    ASSERT_EQ(placed.size(), 4U);
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(placed[i].zone, expected[i].zone);
        EXPECT_EQ(placed[i].observer.label, expected[i].label);
        EXPECT_EQ(built.scene.points[placed[i].point].x, placed[i].observer.x);
    }
    EXPECT_EQ(placed[0].point, placed[3].point); // calculated once
    EXPECT_EQ(built.scene.points.size(), 8U + 3U);
    EXPECT_EQ(built.notices, std::vector<std::string>());
}

TEST(SceneBuild, CountsTheObserversThatStandInNoZone) {
    struct Case {
        std::string position;
        bool inside;
    };
    const Case cases[] = {{"[2, 2, 1.2]", true},
                          {"[4.01, 2, 1.2]", false},
                          {"[2, 2, 2.99]", true},
                          {"[2, 2, 3.01]", false},
                          {"[2, 2, -0.01]", false}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.position);
        const Simulation::StudyScene built = Build(ReadScene(SceneText(
            "\"observadores\": [{\"posicao\": " + c.position + ", \"direcao\": [1, 0]}]")));
        EXPECT_EQ(built.scene.points.size(), c.inside ? 5U : 4U);
        EXPECT_EQ(built.notices,
                  c.inside ? std::vector<std::string>()
                           : std::vector<std::string>{
                                 "1 observador(es) UGR fora das Zonas calculadas (ou com o olho "
                                 "fora da altura da Zona): ignorado(s)"});
    }
}

TEST(SceneBuild, TheExamplesOfTheProjectAreScenes) {
    for (const std::string name : {"sala", "escritorio", "corredor"}) {
        SCOPED_TRACE(name);
        const std::filesystem::path file =
            Tests::SourceFolder() / "exemplos" / name / (name + ".json");
        Simulation::LightingStudy document;
        std::string error;
        ASSERT_TRUE(ReadSceneDocument(Text::Widen(file.string()), document, error)) << error;
        EXPECT_FALSE(Build(document).planes.empty());
    }
}

TEST(SceneBuild, ANarrowZoneIsNotEmpty) {
    const Simulation::StudyScene built = Build(
        ReadScene(ZoneText(R"("contorno": [[0, 0], [4, 0], [4, 0.03], [0, 0.03]], "altura": 3)")));
    EXPECT_TRUE(built.scene.sensorPlanes[0].grid.narrow);
    EXPECT_GT(Simulation::ActiveNodeCount(built.scene.sensorPlanes[0].grid), 0U);
}

TEST(SceneBuild, RefusesAZoneWithoutAPoint) {
    // Its lattice has four nodes, the corners of the box around the diamond.
    EXPECT_EQ(BuildError(ReadScene(R"({"formato": 1, "zonas": [
        {"nome": "Sala", "altura": 3, "contorno": [[0, 0], [4, 0], [4, 4], [0, 4]]},
        {"nome": "Losango", "altura": 3, "espacamento": 100,
         "contorno": [[2, 0], [4, 2], [2, 4], [0, 2]]}]})")),
              "zonas[1] (\"Losango\"): a Zona está vazia: nenhum ponto de cálculo cabe no contorno "
              "(diminua o espacamento)");
}

TEST(SceneBuild, RefusesALatticeOfMoreThanTwentyMillionNodes) {
    EXPECT_EQ(BuildError(ReadScene(ZoneText(
                  R"("contorno": [[0, 0], [100, 0], [100, 100], [0, 100]], "altura": 3,
                     "espacamento": 0.02, "afastamento": 0)"))),
              "zonas[0] (\"Sala\"): plano de trabalho com 25010001 nós; espera-se no máximo "
              "20000000 (aumente o espacamento)");
    EXPECT_EQ(BuildError(ReadScene(ZoneText(
                  R"("contorno": [[0, 0], [90000, 0], [90000, 100], [0, 100]], "altura": 1000,
                     "espacamento": 100, "afastamento": 0, "calcularParedes": true)"))),
              "zonas[0] (\"Sala\"): parede com 360182001 nós; espera-se no máximo 20000000");
}

} // namespace Merivane::Document
