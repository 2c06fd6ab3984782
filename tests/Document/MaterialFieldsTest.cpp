#include <gtest/gtest.h>

#include "SceneTexts.hpp"
#include "Simulation/GlassTransmissivity.hpp"

namespace Merivane::Document {

using Tests::ReadScene;
using Tests::SceneError;
using Tests::SceneText;

namespace {

std::string MaterialText(const std::string& members) {
    return SceneText("\"materiais\": [{\"nome\": \"M\", " + members + "}]");
}

Simulation::SceneMaterial ReadMaterialText(const std::string& members) {
    const Simulation::LightingStudy document = ReadScene(MaterialText(members));
    return document.materials.empty() ? Simulation::SceneMaterial() : document.materials[0];
}

std::string SurfaceText(const std::string& members) {
    return SceneText("\"materiais\": [{\"nome\": \"A\", \"refletancia\": 0.5}, "
                     "{\"nome\": \"B\", \"refletancia\": 0.5}], \"superficies\": [{" +
                     members + "}]");
}

} // namespace

TEST(MaterialFields, AnOpaqueMaterialHasOneReflectanceOrThree) {
    const Simulation::SceneMaterial grey = ReadMaterialText("\"refletancia\": 0.7");
    EXPECT_EQ(grey.name, "M");
    EXPECT_FALSE(grey.isGlass);
    EXPECT_EQ(grey.red, 0.7);
    EXPECT_EQ(grey.green, 0.7);
    EXPECT_EQ(grey.blue, 0.7);
    const Simulation::SceneMaterial red =
        ReadMaterialText("\"tipo\": \"opaco\", \"refletancia\": [1, 0, 0.25]");
    EXPECT_EQ(red.red, 1.0);
    EXPECT_EQ(red.green, 0.0);
    EXPECT_EQ(red.blue, 0.25);
}

TEST(MaterialFields, AGlassTakesTransmissivityAsItIsAndTransmittanceConverted) {
    const Simulation::SceneMaterial plain =
        ReadMaterialText("\"tipo\": \"vidro\", \"transmissividade\": 0.96");
    EXPECT_TRUE(plain.isGlass);
    EXPECT_EQ(plain.red, 0.96);
    EXPECT_EQ(plain.reflectanceInside, -1.0);
    EXPECT_EQ(plain.reflectanceOutside, -1.0);
    const Simulation::SceneMaterial converted =
        ReadMaterialText("\"tipo\": \"vidro\", \"transmitancia\": [0.88, 0.5, 0]");
    EXPECT_EQ(converted.red, Simulation::GlassTransmissivity(0.88));
    EXPECT_EQ(converted.green, Simulation::GlassTransmissivity(0.5));
    EXPECT_EQ(converted.blue, Simulation::GlassTransmissivity(0.0));
}

TEST(MaterialFields, AGlassWithReflectancesKeepsItsNumbers) {
    const Simulation::SceneMaterial glass =
        ReadMaterialText("\"tipo\": \"vidro com refletancias\", \"transmitancia\": 0.6, "
                         "\"refletanciaInterna\": 0.1, \"refletanciaExterna\": 0.4");
    EXPECT_TRUE(glass.isGlass);
    EXPECT_EQ(glass.green, 0.6);
    EXPECT_EQ(glass.reflectanceInside, 0.1);
    EXPECT_EQ(glass.reflectanceOutside, 0.4);
}

TEST(MaterialFields, RefusesWhatDoesNotFitTheKind) {
    struct Case {
        std::string members;
        std::string error;
    };
    const Case cases[] = {
        {"\"tipo\": \"madeira\"", "materiais[0].tipo: espera-se \"opaco\", \"vidro\" ou \"vidro "
                                  "com refletancias\", mas há o texto \"madeira\""},
        {"\"tipo\": 1", "materiais[0].tipo: espera-se \"opaco\", \"vidro\" ou \"vidro com "
                        "refletancias\", mas há 1"},
        {"\"tipo\": \"opaco\"", "materiais[0]: falta a chave \"refletancia\""},
        {"\"refletancia\": 0.5, \"transmitancia\": 0.5",
         "materiais[0]: chave desconhecida \"transmitancia\" num material \"opaco\""},
        {"\"refletancia\": 1.01",
         "materiais[0].refletancia: espera-se um número de 0 a 1 ou uma lista [r, g, b], mas há "
         "1.01"},
        {"\"refletancia\": [0.5, 0.5]",
         "materiais[0].refletancia: espera-se um número de 0 a 1 ou uma lista [r, g, b], mas há "
         "uma lista de 2"},
        {"\"refletancia\": [0.5, -0.1, 0.5]",
         "materiais[0].refletancia[1]: espera-se um número de 0 a 1, mas há -0.1"},
        {"\"tipo\": \"vidro\"", "materiais[0]: espera-se \"transmitancia\" ou "
                                "\"transmissividade\", só uma das duas"},
        {"\"tipo\": \"vidro\", \"transmitancia\": 0.5, \"transmissividade\": 0.5",
         "materiais[0]: espera-se \"transmitancia\" ou \"transmissividade\", só uma das duas"},
        {"\"tipo\": \"vidro\", \"transmitancia\": 0.5, \"refletanciaInterna\": 0.1",
         "materiais[0]: chave desconhecida \"refletanciaInterna\" num material \"vidro\""},
        {"\"tipo\": \"vidro com refletancias\", \"transmitancia\": 0.5, \"refletanciaInterna\": "
         "0.1",
         "materiais[0]: falta a chave \"refletanciaExterna\""},
        {"\"tipo\": \"vidro com refletancias\", \"transmitancia\": [0.1, 0.7, 0.2], "
         "\"refletanciaInterna\": 0.1, \"refletanciaExterna\": 0.5",
         "materiais[0]: transmitância e refletância somam 1.2; espera-se no máximo 1"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.members);
        EXPECT_EQ(SceneError(MaterialText(c.members)), c.error);
    }
    EXPECT_EQ(SceneError(SceneText("\"materiais\": [5]")),
              "materiais[0]: espera-se um objeto, mas há 5");
}

TEST(MaterialFields, TransmittanceAndReflectanceMayReachOneTogether) {
    EXPECT_EQ(SceneError(MaterialText("\"tipo\": \"vidro com refletancias\", \"transmitancia\": "
                                      "0.9, \"refletanciaInterna\": 0.1, "
                                      "\"refletanciaExterna\": 0.1")),
              "");
}

TEST(MaterialFields, RefusesTwoMaterialsOfOneName) {
    EXPECT_EQ(SceneError(SceneText(R"("materiais": [{"nome": "Piso", "refletancia": 0.2},
                                      {"nome": "Teto", "refletancia": 0.7},
                                      {"nome": "Piso", "refletancia": 0.3}])")),
              "materiais[2].nome: o nome \"Piso\" já é o de materiais[0]");
}

TEST(SurfaceFields, ASurfaceNamesItsMaterial) {
    const Simulation::LightingStudy document = ReadScene(SurfaceText(
        R"("material": "B", "vertices": [[0, 0, 1], [1, 0, 1], [1, 1, 1]], "faceExterna": true)"));
    ASSERT_EQ(document.surfaces.size(), 1U);
    EXPECT_EQ(document.surfaces[0].materialIndex, 1);
    EXPECT_TRUE(document.surfaces[0].exteriorFace);
    EXPECT_EQ(document.surfaces[0].vertices[2], (Simulation::Point3D{1, 1, 1}));
}

TEST(SurfaceFields, TheOrderOfKeysInTheDocumentDoesNotMatter) {
    EXPECT_EQ(SceneError(R"({"superficies": [{"vertices": [[0, 0, 0], [1, 0, 0], [0, 1, 0]],
                "material": "A"}], "materiais": [{"refletancia": 0.5, "nome": "A"}],
                "pontos": [{"posicao": [0, 0, 1]}], "formato": 1})"),
              "");
}

TEST(SurfaceFields, RefusesWhatIsNoSurface) {
    struct Case {
        std::string members;
        std::string error;
    };
    const Case cases[] = {
        {R"("material": "C", "vertices": [[0, 0, 0], [1, 0, 0], [1, 1, 0]])",
         "superficies[0].material: nenhum material tem o nome \"C\""},
        {R"("vertices": [[0, 0, 0], [1, 0, 0], [1, 1, 0]])",
         "superficies[0]: falta a chave \"material\""},
        {R"("material": "A", "vertices": [[0, 0, 0], [1, 0, 0]])",
         "superficies[0].vertices: espera-se uma lista de pontos, no mínimo 3, mas há uma lista "
         "de 2"},
        {R"("material": "A", "vertices": "xyz")",
         "superficies[0].vertices: espera-se uma lista de pontos, no mínimo 3, mas há o texto "
         "\"xyz\""},
        {R"("material": "A", "vertices": [[0, 0, 0], [1, 0], [1, 1, 0]])",
         "superficies[0].vertices[1]: espera-se uma lista [x, y, z], mas há uma lista de 2"},
        {R"("material": "A", "vertices": [[0, 0, 0], [1, 0, 0], [2, 0, 0]])",
         "superficies[0].vertices: o polígono tem área nula"},
        {R"("material": "A", "vertices": [[0, 0, 0], [2, 0, 0], [2, 2, 0], [0, 2, 0.02]])",
         "superficies[0].vertices[0]: o vértice está a 5.0 mm do plano do polígono; espera-se no "
         "máximo 1.0 mm"},
        {R"("material": "A", "vertices": [[0, 0, 0], [2, 0, 0], [2, 2, 0]], "faceExterna": 1)",
         "superficies[0].faceExterna: espera-se true ou false, mas há 1"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.members);
        EXPECT_EQ(SceneError(SurfaceText(c.members)), c.error);
    }
}

} // namespace Merivane::Document
