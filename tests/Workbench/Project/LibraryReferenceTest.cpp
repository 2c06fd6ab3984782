#include <string>
#include <variant>

#include <gtest/gtest.h>

#include "Workbench/Project/ProjectFile.hpp"

// Parts that stand in library folders: the project's file tells only who they are.
namespace Merivane::Workbench {
namespace {

constexpr const char* Text = R"({
    "formato": 1,
    "pavimentos": [{ "indice": 0, "nivel": 0, "altura": 3 }],
    "camadas": [{ "numero": 1, "nome": "Geral" }],
    "pecas": [{ "nome": "Mesa", "guid": "{00000000-0000-0000-0000-0000000000A1}" }],
    "pecasDeBiblioteca": [
        { "nome": "Spot", "guid": "{00000000-0000-0000-0000-0000000000A2}", "luminaria": true }
    ],
    "elementos": [{
        "tipo": "luminaria", "guid": "{00000000-0000-0000-0000-0000000000C3}", "pavimento": 0,
        "camada": "Geral", "peca": "Spot", "posicao": [3, 2], "a": 1, "b": 1,
        "parametros": {
            "mvName": "minha",
            "mvFlux": 900,
            "mvTable": { "linhas": 2, "valores": [1, 2] },
            "mvTexts": { "linhas": 1, "valores": ["um"] }
        }
    }]
})";

std::string Changed(const std::string& from, const std::string& to) {
    std::string text = Text;
    text.replace(text.find(from), from.size(), to);
    return text;
}

TEST(LibraryReference, IsAPartThatIsMissingUntilALibraryGivesIt) {
    Project project;
    std::string error;
    ASSERT_TRUE(ParseProject(Text, project, error)) << error;
    ASSERT_EQ(project.parts.size(), 2U);
    EXPECT_EQ(project.parts[0].source, PartSource::Project);
    EXPECT_EQ(project.parts[1].source, PartSource::Missing);
    EXPECT_EQ(project.parts[1].name, "Spot");
    EXPECT_TRUE(project.parts[1].isLamp);
    const ProjectElement& lamp = project.elements[0];
    EXPECT_EQ(std::get<Host::ObjectData>(lamp.element.data).libraryIndex, 2);
    const auto& values = lamp.memo.parameters;
    ASSERT_EQ(values.size(), 4U);
    EXPECT_EQ(values[0].type, Host::ParameterType::String);
    EXPECT_EQ(values[0].text, "minha");
    EXPECT_EQ(values[1].type, Host::ParameterType::Real);
    EXPECT_EQ(values[1].number, 900.0);
    EXPECT_EQ(values[2].numbers, (std::vector<double>{1.0, 2.0}));
    EXPECT_EQ(values[3].texts, (std::vector<std::string>{"um"}));
}

TEST(LibraryReference, IsWrittenWithItsPlacedValuesAndReadBackTheSame) {
    Project project;
    std::string error;
    ASSERT_TRUE(ParseProject(Text, project, error)) << error;
    const std::string written = WriteProject(project);
    Project back;
    ASSERT_TRUE(ParseProject(written, back, error)) << error;
    EXPECT_EQ(back, project);
    EXPECT_EQ(WriteProject(back), written);
}

TEST(LibraryReference, IsLeftOutWhereNothingIsPlacedOfIt) {
    Project project;
    std::string error;
    ASSERT_TRUE(ParseProject(Text, project, error)) << error;
    project.elements.clear();
    EXPECT_EQ(WriteProject(project).find("pecasDeBiblioteca"), std::string::npos);
}

TEST(LibraryReference, IsRefusedWithItsPlace) {
    struct Case {
        const char* from;
        const char* to;
        const char* error;
    };
    const Case cases[] = {
        {"\"nome\": \"Spot\"", "\"nome\": \"Mesa\"",
         "pecasDeBiblioteca[0].nome: o nome \"Mesa\" já é de outra peça"},
        {"\"peca\": \"Spot\"", "\"peca\": \"Outra\"",
         "elementos[0].peca: nenhuma peça tem o nome \"Outra\""},
        {", \"luminaria\": true", "", "elementos[0]: a peça não é de luminária"},
        {"\"mvFlux\"", "\"MVNAME\"",
         "elementos[0].parametros: aparece duas vezes o parâmetro \"MVNAME\""},
        {"\"mvFlux\"", "\"mv Flux\"",
         "elementos[0].parametros: nenhuma peça pode ter o parâmetro \"mv Flux\""},
        {"[1, 2]", "[1]",
         "elementos[0].parametros.mvTable.valores: espera-se uma lista de 2 valores (2 x 1), mas "
         "há uma lista de 1"},
        {"900", "true", "elementos[0].parametros.mvFlux: espera-se um número, mas há true"},
    };
    for (const Case& c : cases) {
        Project project;
        std::string error;
        EXPECT_FALSE(ParseProject(Changed(c.from, c.to), project, error));
        EXPECT_EQ(error, c.error);
    }
}

} // namespace
} // namespace Merivane::Workbench
