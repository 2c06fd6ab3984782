#include <gtest/gtest.h>

#include "SceneTexts.hpp"

namespace Merivane::Document {

using Simulation::Point2D;
using Tests::ReadScene;
using Tests::SceneError;
using Tests::ZoneText;

namespace {

const std::string Square = R"("contorno": [[0, 0], [4, 0], [4, 4], [0, 4]], )";

} // namespace

TEST(ZoneFields, ReadsEveryKey) {
    const Simulation::LightingStudy document = ReadScene(ZoneText(
        R"("contorno": [[0, 0], [9, 0], [9, 9], [0, 9]],
           "furos": [[[1, 1], [2, 1], [2, 2]], [[4, 4], [5, 4], [5, 5]]], "piso": -3.5,
           "altura": 2.8, "planoDeTrabalho": 0.8, "afastamento": 0.1, "faixa": 0.4,
           "espacamento": 0.25, "calcularParedes": true, "calcularTeto": true,
           "calcularPiso": true)"));
    ASSERT_EQ(document.zones.size(), 1U);
    const Simulation::StudyZone& zone = document.zones[0];
    EXPECT_EQ(zone.name, "Sala");
    EXPECT_EQ(zone.outline.outer, (std::vector<Point2D>{{0, 0}, {9, 0}, {9, 9}, {0, 9}}));
    ASSERT_EQ(zone.outline.holes.size(), 2U);
    EXPECT_EQ(zone.outline.holes[1][2], (Point2D{5, 5}));
    EXPECT_EQ(zone.floorLevel, -3.5);
    EXPECT_EQ(zone.height, 2.8);
    EXPECT_EQ(zone.grid, (Simulation::GridSettings{0.8, 0.4, 0.1, 0.25}));
    EXPECT_TRUE(zone.calculateWalls);
    EXPECT_TRUE(zone.calculateCeiling);
    EXPECT_TRUE(zone.calculateFloor);
}

TEST(ZoneFields, TakesAnOutlineThatRepeatsItsFirstPoint) {
    const Simulation::LightingStudy document =
        ReadScene(ZoneText(R"("altura": 3, "contorno": [[0, 0], [4, 0], [4, 4], [0, 4], [0, 0]])"));
    ASSERT_EQ(document.zones.size(), 1U);
    EXPECT_EQ(document.zones[0].outline.outer.size(), 4U);
}

TEST(ZoneFields, RefusesWhatIsNoZone) {
    struct Case {
        std::string members;
        std::string error;
    };
    const Case cases[] = {
        {R"("altura": 3)", "zonas[0]: falta a chave \"contorno\""},
        {R"("contorno": [[0, 0], [1, 0], [1, 1]])", "zonas[0]: falta a chave \"altura\""},
        {R"("altura": 3, "contorno": [[0, 0], [1, 0]])",
         "zonas[0].contorno: espera-se uma lista de pontos, no mínimo 3, mas há uma lista de 2"},
        {R"("altura": 3, "contorno": [[0, 0], [1, 0], [1, 0], [0, 0]])",
         "zonas[0].contorno: o contorno tem área nula"},
        {R"("altura": 3, "contorno": [[0, 0], [1, 0], [2, 0]])",
         "zonas[0].contorno: o contorno tem área nula"},
        {R"("altura": 3, "contorno": [[0, 0], [1, 0, 0], [2, 0]])",
         "zonas[0].contorno[1]: espera-se um ponto [x, y], mas há uma lista de 3"},
        {R"("altura": 3, "contorno": [[0, 0], [1, "a"], [2, 0]])",
         "zonas[0].contorno[1][1]: espera-se um número de -100000 a 100000, mas há o texto \"a\""},
        {R"("altura": 3, "contorno": [[0, 0], [2, 2], [2, 0], [0, 2]])",
         "zonas[0].contorno: o contorno cruza a si mesmo em [1.00, 1.00]"},
        {Square + R"("altura": 3, "furos": [[[1, 1], [2, 1], [2, 2]], [[3, 1], [5, 1], [5, 2]]])",
         "zonas[0].furos[1]: o furo cruza outro contorno em [4.00, 1.00]"},
        {Square + R"("altura": 3, "furos": [[[5, 1], [6, 1], [6, 2]]])",
         "zonas[0].furos[0]: o furo sai do contorno da Zona em [5.00, 1.00]"},
        {Square + R"("altura": 3, "furos": [[[1, 1], [2, 1]]])",
         "zonas[0].furos[0]: espera-se uma lista de pontos, no mínimo 3, mas há uma lista de 2"},
        {Square + R"("altura": 0)",
         "zonas[0].altura: espera-se um número de 0.01 a 1000, mas há 0"},
        {Square + R"("altura": 3, "planoDeTrabalho": 3)",
         "zonas[0].planoDeTrabalho: espera-se menos que a altura da Zona (3), mas há 3"},
        {Square + R"("altura": 0.5)",
         "zonas[0].planoDeTrabalho: espera-se menos que a altura da Zona (0.5), mas há 0.75"},
        {Square + R"("altura": 3, "espacamento": 0.009)",
         "zonas[0].espacamento: espera-se 0 ou um número de 0.01 a 100, mas há 0.009"},
        {Square + R"("altura": 3, "faixa": -0.1)",
         "zonas[0].faixa: espera-se um número de 0 a 100, mas há -0.1"},
        {Square + R"("altura": 3, "calcularTeto": "sim")",
         "zonas[0].calcularTeto: espera-se true ou false, mas há o texto \"sim\""},
        {Square + R"("altrua": 3)", "zonas[0]: chave desconhecida \"altrua\" (talvez \"altura\")"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.members);
        EXPECT_EQ(SceneError(ZoneText(c.members)), c.error);
    }
}

TEST(ZoneFields, AcceptsTheEndsOfEveryRange) {
    for (const std::string members :
         {R"("altura": 0.01, "planoDeTrabalho": 0)", R"("altura": 1000, "planoDeTrabalho": 999)",
          R"("altura": 3, "espacamento": 0.01, "afastamento": 100, "faixa": 100)",
          R"("altura": 3, "espacamento": 0, "afastamento": 0, "faixa": 0)",
          R"("altura": 3, "espacamento": 100, "piso": -100000)"}) {
        SCOPED_TRACE(members);
        EXPECT_EQ(SceneError(ZoneText(Square + members)), "");
    }
}

TEST(ZoneFields, BoundsTheNumberOfPoints) {
    std::string ring = "[0, 0]";
    for (int i = 1; i <= 9995; ++i) {
        ring += ", [" + std::to_string(i) + ", 0]";
    }
    const std::string outline =
        "\"altura\": 3, \"contorno\": [" + ring + ", [9995, 9], [0, 9]], \"furos\": ";
    EXPECT_EQ(SceneError(ZoneText(outline + "[[[1, 1], [2, 1], [2, 2]]]")),
              "zonas[0]: contorno e furos têm 10001 pontos; espera-se no máximo 10000");
}

} // namespace Merivane::Document
