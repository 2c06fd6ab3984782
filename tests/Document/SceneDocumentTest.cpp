#include <gtest/gtest.h>

#include "Document/SceneDocument.hpp"
#include "SceneTexts.hpp"
#include "Support/Places.hpp"
#include "Text/Utf8.hpp"

namespace Merivane::Document {

using Tests::ReadScene;
using Tests::SceneError;
using Tests::SceneText;

namespace {

std::wstring Wide(const std::filesystem::path& path) {
    return Text::Widen(path.string());
}

std::string FileError(const std::filesystem::path& path) {
    Simulation::LightingStudy document;
    std::string error;
    return ReadSceneDocument(Wide(path), document, error) ? "" : error;
}

} // namespace

TEST(SceneDocument, ASmallDocumentTakesTheDefaults) {
    const Simulation::LightingStudy document = ReadScene(SceneText(""));
    EXPECT_EQ(document.name, "");
    EXPECT_EQ(document.engine, Simulation::ProfileSettings(1));
    EXPECT_EQ(document.levels, Simulation::DefaultLevels());
    ASSERT_EQ(document.zones.size(), 1U);
    const Simulation::StudyZone& zone = document.zones[0];
    EXPECT_EQ(zone.name, "Sala");
    EXPECT_EQ(zone.floorLevel, 0.0);
    EXPECT_EQ(zone.height, 3.0);
    EXPECT_EQ(zone.grid, Simulation::GridSettings());
    EXPECT_FALSE(zone.calculateWalls || zone.calculateCeiling || zone.calculateFloor);
}

TEST(SceneDocument, TellsThatAllWillBeDarkWithoutLuminaires) {
    EXPECT_EQ(ReadScene(SceneText("")).warnings,
              std::vector<std::string>{"O documento não tem luminárias: todo valor será 0."});
}

TEST(SceneDocument, RefusesWhatIsNoSceneDocument) {
    struct Case {
        std::string text;
        std::string error;
    };
    const Case cases[] = {
        {"", "o documento está vazio"},
        {" \r\n\t", "o documento está vazio"},
        {"{\"formato\": 1", "não é um documento JSON: esperava ',' ou '}' (byte 13)"},
        {"cena", "não é um documento JSON: valor inesperado (byte 0)"},
        {"\xEF\xBB\xBF", "não é um documento JSON: fim inesperado (byte 3)"},
        {"[]", "documento: espera-se um objeto, mas há uma lista vazia"},
        {"{}", "documento: falta a chave \"formato\""},
        {R"({"formato": "1"})",
         "formato: espera-se um número inteiro a partir de 1, mas há o texto \"1\""},
        {R"({"formato": 0})", "formato: espera-se um número inteiro a partir de 1, mas há 0"},
        {R"({"formato": 1.5})", "formato: espera-se um número inteiro a partir de 1, mas há 1.5"},
        {R"({"formato": 2, "novidade": []})",
         "formato: o documento é do formato 2, mais novo que o formato 1, o último que este "
         "programa entende"},
        {R"({"formato": 1})",
         "documento: nada a calcular: espera-se ao menos uma Zona ou um ponto"},
        {R"({"formato": 1, "zonas": [], "pontos": []})",
         "documento: nada a calcular: espera-se ao menos uma Zona ou um ponto"},
        {R"({"formato": 1e999})", "não é um documento JSON: numero invalido (byte 12)"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.text);
        EXPECT_EQ(SceneError(c.text), c.error);
    }
}

TEST(SceneDocument, NamesThePlaceOfAnUnknownKeyAndTheNearestKnownOne) {
    struct Case {
        std::string members;
        std::string error;
    };
    const Case cases[] = {
        {R"("luminaria": [])",
         "documento: chave desconhecida \"luminaria\" (talvez \"luminarias\")"},
        {R"("Niveis": [1])", "documento: chave desconhecida \"Niveis\" (talvez \"niveis\")"},
        {R"("autor": "A")", "documento: chave desconhecida \"autor\""},
        {R"("": 1)", "documento: chave desconhecida \"\""},
        {R"("motor": {"raio": 64})", "motor: chave desconhecida \"raio\" (talvez \"raios\")"},
        {R"("luminarias": [{"rotação": 1}])",
         "luminarias[0]: chave desconhecida \"rotação\" (talvez \"rotacao\")"},
        {R"("luminarias": [{"rotaçao": 1}])",
         "luminarias[0]: chave desconhecida \"rotaçao\" (talvez \"rotacao\")"},
        {R"("luminarias": [{"repeticao": {"z": 1}, "ies": "a.ies", "posicao": [0, 0, 0]}])",
         "luminarias[0].repeticao: chave desconhecida \"z\""},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.members);
        EXPECT_EQ(SceneError(SceneText(c.members)), c.error);
    }
}

TEST(SceneDocument, SaysWhatItFoundInsteadOfWhatItExpects) {
    struct Case {
        std::string value;
        std::string found;
    };
    const Case cases[] = {
        {"null", "null"},
        {"true", "true"},
        {"false", "false"},
        {"-3", "-3"},
        {"100000", "100000"},
        {"0.1", "0.1"},
        {"1e300", "1e+300"},
        {"[]", "uma lista vazia"},
        {"[1, 2]", "uma lista de 2"},
        {"{}", "um objeto"},
        {"\"\"", "o texto \"\""},
        {"\"a\\nb\"", "o texto \"a b\""},
        {"\"" + std::string(70, 'x') + "\"", "o texto \"" + std::string(60, 'x') + "...\""},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.value);
        EXPECT_EQ(SceneError(SceneText("\"nome\": \"N\", \"materiais\": " +
                                       ("[{\"nome\": \"M\", \"refletancia\": " + c.value + "}]"))),
                  c.value == "0.1"
                      ? ""
                      : "materiais[0].refletancia: espera-se um número de 0 a 1 ou uma lista "
                        "[r, g, b], mas há " +
                            c.found);
    }
}

TEST(SceneDocument, ATextIsOneLineOfUtf8ThatIsNotEmpty) {
    const std::string expected =
        "nome: espera-se um texto não vazio, em UTF-8 e numa linha só, mas há ";
    EXPECT_EQ(SceneError(SceneText("\"nome\": \"  \"")), expected + "o texto \"\"");
    EXPECT_EQ(SceneError(SceneText("\"nome\": \"a\\u0000\"")), expected + "o texto \"a\"");
    EXPECT_EQ(SceneError(SceneText("\"nome\": \"S\xE3o\"")),
              expected + "o texto \"S\xEF\xBF\xBDo\"");
    EXPECT_EQ(SceneError(SceneText("\"nome\": \"\\udc00\"")),
              expected + "o texto \"\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD\"");
    EXPECT_EQ(SceneError(SceneText("\"nome\": 5")), expected + "5");
    EXPECT_EQ(ReadScene(SceneText("\"nome\": \"São João\"")).name, "São João");
}

TEST(SceneDocument, SortsLevelsAndDropsRepeats) {
    EXPECT_EQ(ReadScene(SceneText("\"niveis\": [300, 100, 12.5, 100]")).levels,
              (Simulation::LevelList{12.5, 100, 300}));
    EXPECT_EQ(SceneError(SceneText("\"niveis\": []")),
              "niveis: espera-se uma lista de números, no mínimo 1, mas há uma lista vazia");
    EXPECT_EQ(SceneError(SceneText("\"niveis\": [100, 0]")),
              "niveis[1]: espera-se um número de 0.001 a 1000000, mas há 0");
    std::string many = "1";
    for (int level = 2; level <= 101; ++level) {
        many += ", " + std::to_string(level);
    }
    EXPECT_EQ(SceneError(SceneText("\"niveis\": [" + many + "]")),
              "niveis: espera-se uma lista de números, no máximo 100, mas há uma lista de 101");
}

TEST(SceneDocument, ReadsLoosePointsWithDirectionsOfLengthOne) {
    const Simulation::LightingStudy document = ReadScene(
        R"({"formato": 1, "pontos": [{"posicao": [1, 2, 3]},
            {"posicao": [0, 0, 0], "direcao": [3, 0, -4]}]})");
    ASSERT_EQ(document.points.size(), 2U);
    EXPECT_EQ(document.points[0].x, 1.0);
    EXPECT_EQ(document.points[0].y, 2.0);
    EXPECT_EQ(document.points[0].z, 3.0);
    EXPECT_EQ(document.points[0].directionZ, 1.0);
    EXPECT_DOUBLE_EQ(document.points[1].directionX, 0.6);
    EXPECT_DOUBLE_EQ(document.points[1].directionZ, -0.8);
    EXPECT_EQ(SceneError(R"({"formato": 1, "pontos": [{"posicao": [0, 0, 0],
                             "direcao": [0, 0, 0]}]})"),
              "pontos[0].direcao: a direção tem comprimento nulo");
    EXPECT_EQ(SceneError(R"({"formato": 1, "pontos": [{"posicao": [0, 0]}]})"),
              "pontos[0].posicao: espera-se uma lista [x, y, z], mas há uma lista de 2");
    EXPECT_EQ(SceneError(R"({"formato": 1, "pontos": [{"posicao": [0, 0, 100000.5]}]})"),
              "pontos[0].posicao[2]: espera-se um número de -100000 a 100000, mas há 100000.5");
}

TEST(SceneDocument, RefusesTheDocumentCutAtEveryLength) {
    const std::string whole = SceneText(
        R"("materiais": [{"nome": "M", "refletancia": 0.5}], "motor": {"perfil": "final"})");
    EXPECT_EQ(SceneError(whole), "");
    for (std::size_t length = 0; length < whole.size(); ++length) {
        EXPECT_NE(SceneError(whole.substr(0, length)), "") << length;
    }
}

TEST(SceneDocument, TheExampleOfItsPageIsADocument) {
    const std::string page = Tests::ReadBytes(Tests::SourceFolder() / "docs" / "cena.md");
    const std::size_t begin = page.find("```json\n");
    ASSERT_NE(begin, std::string::npos);
    const std::string text = page.substr(begin + 8, page.find("```", begin + 8) - begin - 8);
    const Simulation::LightingStudy document = ReadScene(text);
    EXPECT_EQ(document.name, "Sala de leitura");
    EXPECT_EQ(document.materials.size(), 3U);
    EXPECT_EQ(document.surfaces.size(), 3U);
    EXPECT_EQ(document.levels.size(), 4U);
}

TEST(SceneDocument, FindsIesFilesFromTheFolderOfTheDocument) {
    const Tests::TemporaryFolder folder;
    std::filesystem::create_directories(folder.Path() / "pasta à parte" / "ies");
    Tests::WriteBytes(folder.Path() / "pasta à parte" / "ies" / "a.ies", Tests::UniformIes());
    const std::filesystem::path file = folder.Path() / "pasta à parte" / "cena.json";
    Tests::WriteBytes(file,
                      SceneText(R"("luminarias": [{"ies": "ies/a.ies", "posicao": [2, 2, 3]}])"));
    Simulation::LightingStudy document;
    std::string error;
    ASSERT_TRUE(ReadSceneDocument(Wide(file), document, error)) << error;
    EXPECT_EQ(document.luminaires[0].photometry.inputWatts, 25.0);

    const std::string absolute = (folder.Path() / "pasta à parte" / "ies" / "a.ies").string();
    Tests::WriteBytes(
        folder.Path() / "cena.json",
        SceneText(R"("luminarias": [{"posicao": [2, 2, 3], "ies": ")" + absolute + "\"}]"));
    EXPECT_EQ(FileError(folder.Path() / "cena.json"), "");
}

TEST(SceneDocument, NamesTheFileThatItRefuses) {
    const Tests::TemporaryFolder folder;
    const std::filesystem::path file = folder.Path() / "cena.json";
    EXPECT_EQ(FileError(file),
              "o documento \"" + file.string() + "\" não existe ou não pode ser lido");
    EXPECT_EQ(FileError(folder.Path()),
              "o documento \"" + folder.Path().string() + "\" não existe ou não pode ser lido");
    Tests::WriteBytes(file, "");
    EXPECT_EQ(FileError(file), "\"" + file.string() + "\": o documento está vazio");
    Tests::WriteBytes(file, SceneText(R"("luminarias": [{"ies": "a.ies", "posicao": [0, 0, 0]}])"));
    EXPECT_EQ(FileError(file), "\"" + file.string() +
                                   "\": luminarias[0].ies: o arquivo IES \"a.ies\" não existe ou "
                                   "não pode ser lido");
}

} // namespace Merivane::Document
