#include <numbers>

#include <gtest/gtest.h>

#include "SceneTexts.hpp"

namespace Merivane::Document {

using Simulation::SceneLuminaire;
using Tests::ReadScene;
using Tests::SceneError;
using Tests::SceneText;

namespace {

std::string LuminaireText(const std::string& members) {
    return SceneText("\"luminarias\": [{" + members + "}]");
}

const std::string Placed = R"("ies": "a.ies", "posicao": [1, 2, 3])";

/// Reads a document with one luminaire whose file has these bytes.
Simulation::LightingStudy ReadWithIes(const std::string& bytes,
                                      const std::string& members = Placed) {
    const IesLoader loader = [&bytes](const std::string&, std::string& text) {
        text = bytes;
        return true;
    };
    Simulation::LightingStudy document;
    std::string error;
    EXPECT_TRUE(ParseSceneDocument(LuminaireText(members), loader, document, error)) << error;
    return document;
}

} // namespace

TEST(LuminaireFields, ReadsEveryKey) {
    const Simulation::LightingStudy document = ReadScene(LuminaireText(
        R"("nome": "L1", "ies": "pasta/a.ies", "posicao": [1, 2, 3], "rotacao": 90,
           "espelhada": true, "centro": [0.1, 0.2, -0.3], "rotacaoC0": 15, "inclinacao": 30,
           "direcaoDaInclinacao": 45, "dimerizacao": 0.5, "fatorDeManutencao": 0.9,
           "indiceDeReproducaoDeCor": 92.5,
           "repeticao": {"x": 3, "y": 2, "passoX": 1.5, "passoY": -2},
           "escalaDeComprimento": 0.75)"));
    ASSERT_EQ(document.luminaires.size(), 1U);
    const SceneLuminaire& luminaire = document.luminaires[0];
    EXPECT_EQ(luminaire.id, "lum1");
    EXPECT_EQ(luminaire.displayName, "L1");
    EXPECT_EQ(luminaire.manufacturer, "Oficina");
    EXPECT_EQ(luminaire.contract.iesFileName, "a.ies");
    EXPECT_EQ(luminaire.inputWatts, 25.0);
    EXPECT_EQ(luminaire.x, 1.0);
    EXPECT_EQ(luminaire.y, 2.0);
    EXPECT_EQ(luminaire.z, 3.0);
    EXPECT_DOUBLE_EQ(luminaire.rotation, std::numbers::pi / 2.0);
    EXPECT_TRUE(luminaire.mirrored);
    EXPECT_EQ(luminaire.contract.centerX, 0.1);
    EXPECT_EQ(luminaire.contract.centerY, 0.2);
    EXPECT_EQ(luminaire.contract.centerZ, -0.3);
    EXPECT_EQ(luminaire.contract.c0Rotation, 15.0);
    EXPECT_EQ(luminaire.contract.tiltAngle, 30.0);
    EXPECT_EQ(luminaire.contract.tiltDirection, 45.0);
    EXPECT_EQ(luminaire.dimming, 0.5);
    EXPECT_EQ(luminaire.contract.maintenanceFactor, 0.9);
    EXPECT_EQ(luminaire.contract.colourRendering, 92.5);
    EXPECT_EQ(luminaire.arrayCountX, 3);
    EXPECT_EQ(luminaire.arrayCountY, 2);
    EXPECT_EQ(luminaire.arrayStepX, 1.5);
    EXPECT_EQ(luminaire.arrayStepY, -2.0);
    EXPECT_EQ(luminaire.lengthScale, 0.75);
    EXPECT_EQ(luminaire.photometry.candela, (std::vector<std::vector<double>>{{1, 1, 1}}));
}

TEST(LuminaireFields, TakesTheDefaults) {
    const Simulation::LightingStudy document = ReadScene(LuminaireText(Placed));
    ASSERT_EQ(document.luminaires.size(), 1U);
    const SceneLuminaire& luminaire = document.luminaires[0];
    EXPECT_EQ(luminaire.dimming, 1.0);
    EXPECT_EQ(luminaire.contract.maintenanceFactor, 0.8);
    EXPECT_EQ(luminaire.contract.colourRendering, 0.0);
    EXPECT_EQ(luminaire.rotation, 0.0);
    EXPECT_FALSE(luminaire.mirrored);
    EXPECT_EQ(luminaire.arrayCountX, 1);
    EXPECT_EQ(luminaire.lengthScale, 1.0);
    EXPECT_TRUE(document.warnings.empty());
}

TEST(LuminaireFields, IsNamedAfterItsFileWhereTheDocumentGivesNoName) {
    struct Case {
        std::string header;
        std::string name;
    };
    const Case cases[] = {
        {"[LUMCAT] D-1\n[LUMINAIRE] Downlight\n", "D-1"},
        {"[LUMCAT]\n[LUMINAIRE] Downlight\n[MORE] redondo\n", "Downlight"},
        {"[LUMINAIRE] Emiss\xE3o\n", "Emissão"}, // Windows-1252
        {"", "a.ies"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(ReadWithIes(Tests::UniformIes(c.header)).luminaires[0].displayName, c.name);
    }
}

TEST(LuminaireFields, TakesTheColourRenderingOfTheHeaderWhereTheDocumentGivesNone) {
    const std::string given = Placed + R"(, "indiceDeReproducaoDeCor": 1)";
    struct Case {
        std::string header;
        std::string members;
        double colourRendering;
    };
    const Case cases[] = {
        {"", Placed, 0.0},
        {"[_RA] 90\n", Placed, 90.0},
        {"[LAMP] LED IRC \xB3 80\n", Placed, 80.0}, // Windows-1252
        {"[_RA] 90\n", given, 1.0},
        {"", given, 1.0},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.header + c.members);
        const Simulation::LightingStudy document =
            ReadWithIes(Tests::UniformIes(c.header), c.members);
        EXPECT_EQ(document.luminaires[0].contract.colourRendering, c.colourRendering);
    }
}

TEST(LuminaireFields, HeaderTextsOfThePhotometryAreUtf8) {
    const Simulation::LightingStudy document =
        ReadWithIes(Tests::UniformIes("[MANUFAC] S\xE3o\nfacho 10\xB0\n"));
    const Photometry::IesFile& file = document.luminaires[0].photometry;
    EXPECT_EQ(FindKeyword(file, "MANUFAC"), "São");
    EXPECT_EQ(file.otherLines, std::vector<std::string>{"facho 10°"});
}

TEST(LuminaireFields, ReadsEachFileOnceAndTellsItsWarningsOnce) {
    int loads = 0;
    const IesLoader loader = [&loads](const std::string&, std::string& bytes) {
        ++loads;
        bytes = Tests::UniformIes() + "5 5\n";
        return true;
    };
    const std::string one = "{" + Placed + "}";
    Simulation::LightingStudy document;
    std::string error;
    ASSERT_TRUE(ParseSceneDocument(SceneText("\"luminarias\": [" + one + ", " + one + "]"), loader,
                                   document, error))
        << error;
    EXPECT_EQ(loads, 1);
    EXPECT_EQ(document.luminaires[1].id, "lum2");
    EXPECT_EQ(document.warnings,
              std::vector<std::string>{
                  "\"a.ies\": 2 valor(es) depois da tabela de candela, ignorado(s)"});
}

TEST(LuminaireFields, TellsOfAnOpeningThatIsCalculatedAsAnother) {
    const Simulation::LightingStudy document = ReadWithIes(
        "IESNA:LM-63-2002\nTILT=NONE\n1 1000 1 3 1 1 2 0 0 -0.05\n1 1 25\n0 90 180\n0\n1 1 1\n");
    ASSERT_EQ(document.warnings.size(), 1U);
    EXPECT_TRUE(document.warnings[0].starts_with("\"a.ies\": a abertura luminosa de 0 x 0 x -0,05"))
        << document.warnings[0];
}

TEST(LuminaireFields, RefusesWhatIsNoLuminaire) {
    struct Case {
        std::string members;
        std::string error;
    };
    const Case cases[] = {
        {R"("posicao": [0, 0, 0])", "luminarias[0]: falta a chave \"ies\""},
        {R"("ies": "a.ies")", "luminarias[0]: falta a chave \"posicao\""},
        {R"("ies": "", "posicao": [0, 0, 0])",
         "luminarias[0].ies: espera-se um texto não vazio, em UTF-8 e numa linha só, mas há o "
         "texto \"\""},
        {R"("ies": "falta.ies", "posicao": [0, 0, 0])",
         "luminarias[0].ies: o arquivo IES \"falta.ies\" não existe ou não pode ser lido"},
        {R"("ies": "ruim.ies", "posicao": [0, 0, 0])",
         "luminarias[0].ies: o arquivo IES \"ruim.ies\" foi recusado: linha TILT= nao encontrada "
         "- nao parece um arquivo IES"},
        {Placed + R"(, "dimerizacao": 1.01)",
         "luminarias[0].dimerizacao: espera-se um número de 0 a 1, mas há 1.01"},
        {Placed + R"(, "fatorDeManutencao": -0.01)",
         "luminarias[0].fatorDeManutencao: espera-se um número de 0 a 1, mas há -0.01"},
        {Placed + R"(, "indiceDeReproducaoDeCor": 0.99)",
         "luminarias[0].indiceDeReproducaoDeCor: espera-se um número de 1 a 100, mas há 0.99"},
        {Placed + R"(, "indiceDeReproducaoDeCor": 100.01)",
         "luminarias[0].indiceDeReproducaoDeCor: espera-se um número de 1 a 100, mas há 100.01"},
        {Placed + R"(, "rotacao": 361)",
         "luminarias[0].rotacao: espera-se um número de -360 a 360, mas há 361"},
        {Placed + R"(, "inclinacao": 181)",
         "luminarias[0].inclinacao: espera-se um número de -180 a 180, mas há 181"},
        {Placed + R"(, "repeticao": {"x": 2.5, "passoX": 1})",
         "luminarias[0].repeticao.x: espera-se um número inteiro de 1 a 1000, mas há 2.5"},
        {Placed + R"(, "repeticao": {"y": 0})",
         "luminarias[0].repeticao.y: espera-se um número inteiro de 1 a 1000, mas há 0"},
        {Placed + R"(, "repeticao": {"x": 2, "passoY": 1})",
         "luminarias[0].repeticao: espera-se um passo diferente de 0 onde há mais de uma "
         "luminária"},
        {Placed + R"(, "escalaDeComprimento": 0)",
         "luminarias[0].escalaDeComprimento: espera-se um número de 0.001 a 1000, mas há 0"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.members);
        EXPECT_EQ(SceneError(LuminaireText(c.members)), c.error);
    }
}

} // namespace Merivane::Document
