#include <string>

#include <gtest/gtest.h>

#include "Support/Places.hpp"
#include "Text/NativePath.hpp"
#include "Text/ShownText.hpp"
#include "Workbench/Project/ProjectFile.hpp"

namespace Merivane::Workbench {
namespace {

/// A small project with one of most things, as a person would write it.
const std::string SmallProject = R"({
"formato": 1,
"nome": "Sala",
"pavimentos": [{"indice": 0, "nome": "Térreo", "nivel": 0, "altura": 3},
               {"indice": 1, "nome": "1º", "nivel": 3, "altura": 3}],
"camadas": [{"numero": 1, "nome": "Geral"}, {"numero": 2, "nome": "Paredes", "oculta": true}],
"combinacoes": [{"numero": 1, "nome": "Tudo",
                 "estados": [{"camada": "Geral"}, {"camada": "Paredes"}]}],
"tiposDeLinha": [{"numero": 1, "nome": "Tracejada", "tracos": [3, 1.5]}],
"preenchimentos": [{"numero": 1, "nome": "Sólido", "tipo": "solido"}],
"superficies": [{"numero": 1, "nome": "Branco", "cor": [1, 1, 1]}],
"pecas": [{"nome": "Plafon", "guid": "{00000000-0000-0000-0000-0000000000A1}", "luminaria": true,
           "parametros": [{"nome": "mvFluxo", "tipo": "real", "valor": 3200},
                          {"nome": "mvNome", "tipo": "texto", "valor": "P1"},
                          {"nome": "mvTabela", "tipo": "real", "linhas": 2, "colunas": 2,
                           "valores": [1, 2, 3, 4]}],
           "superficies": [{"nome": "Difusor", "cor": [1, 1, 1]}],
           "corpos": [{"vertices": [[0, 0, 0], [1, 0, 0], [0, 1, 0]],
                       "faces": [{"contornos": [[0, 1, 2]], "superficieDaPeca": "Difusor"}]}]}],
"janelas": [{"guid": "{00000000-0000-0000-0000-0000000000B1}", "tipo": "folha de trabalho",
             "nome": "Folha"},
            {"guid": "{00000000-0000-0000-0000-0000000000B2}", "tipo": "corte",
             "marcador": "{00000000-0000-0000-0000-0000000000C6}",
             "linha": {"inicio": [0, 1], "fim": [6, 1]}}],
"elementos": [
 {"tipo": "parede", "guid": "{00000000-0000-0000-0000-0000000000C1}", "pavimento": 0,
  "camada": "Paredes", "inicio": [0, 0], "fim": [6, 0], "superficieEsquerda": "Branco"},
 {"tipo": "porta", "guid": "{00000000-0000-0000-0000-0000000000C2}", "pavimento": 0,
  "camada": "Paredes", "parede": "{00000000-0000-0000-0000-0000000000C1}", "distancia": 2},
 {"tipo": "zona", "guid": "{00000000-0000-0000-0000-0000000000C3}", "pavimento": 0,
  "camada": "Geral", "nome": "Sala", "altura": 2.8, "posicaoDoCarimbo": [1, 1],
  "poligono": [{"vertices": [[0, 0], [6, 0], [6, 4], [0, 4]]}]},
 {"tipo": "luminaria", "guid": "{00000000-0000-0000-0000-0000000000C4}", "pavimento": 0,
  "camada": "Geral", "carimbo": 5, "peca": "Plafon", "posicao": [3, 2], "a": 1, "b": 1,
  "parametros": {"mvFluxo": 2500}},
 {"tipo": "texto", "guid": "{00000000-0000-0000-0000-0000000000C5}", "pavimento": 0,
  "camada": "Geral", "janela": "{00000000-0000-0000-0000-0000000000B1}", "posicao": [0, 0],
  "paragrafos": [{"texto": "Olá", "trechos": [{"letras": 3}]}]},
 {"tipo": "corte", "guid": "{00000000-0000-0000-0000-0000000000C6}", "pavimento": 0,
  "camada": "Geral"},
 {"tipo": "pilar", "guid": "{00000000-0000-0000-0000-0000000000C7}", "pavimento": 0,
  "camada": "Geral",
  "partes": [{"tipo": "segmento de pilar", "guid": "{00000000-0000-0000-0000-0000000000C8}",
              "altura": 3, "poligono": [{"vertices": [[0, 0], [0.2, 0], [0.2, 0.2]]}]}]},
 {"tipo": "linha", "guid": "{00000000-0000-0000-0000-0000000000C9}", "pavimento": 0,
  "camada": "Geral", "inicio": [0, 0], "fim": [1, 0], "tipoDeLinha": "Tracejada"}
],
"vistas": [{"guid": "{00000000-0000-0000-0000-0000000000D1}", "nome": "Pasta", "ehPasta": true},
           {"guid": "{00000000-0000-0000-0000-0000000000D2}", "nome": "Planta",
            "pasta": "{00000000-0000-0000-0000-0000000000D1}", "combinacao": "Tudo"}],
"dados": [{"nome": "MerivaneZonas", "texto": "abc"}],
"selecao": ["{00000000-0000-0000-0000-0000000000C3}"],
"janelaAtual": {"tipo": "folha de trabalho", "guid": "{00000000-0000-0000-0000-0000000000B1}"},
"ultimoCarimbo": 5
})";

std::string ErrorOf(const std::string& text) {
    Project project;
    project.name = "intacto";
    std::string error;
    if (ParseProject(text, project, error)) {
        return "";
    }
    EXPECT_EQ(project.name, "intacto");
    return error;
}

/// The refusal of the small project with one piece of its text replaced, which must stand in it.
std::string ErrorWith(const std::string& piece, const std::string& other) {
    std::string text = SmallProject;
    const std::size_t at = text.find(piece);
    if (at == std::string::npos) {
        return "the piece does not stand in the project";
    }
    return ErrorOf(text.replace(at, piece.size(), other));
}

struct Case {
    std::string piece;
    std::string other;
    std::string error;
};

template <std::size_t Count> void ExpectRefusals(const Case (&cases)[Count]) {
    for (const Case& c : cases) {
        EXPECT_EQ(ErrorWith(c.piece, c.other), c.error) << c.piece << " -> " << c.other;
    }
}

} // namespace

TEST(ParseProject, TakesTheSmallProject) {
    Project project;
    std::string error;
    ASSERT_TRUE(ParseProject(SmallProject, project, error)) << error;
    EXPECT_EQ(project.elements.size(), 8U);
    EXPECT_EQ(project.elements[3].memo.parameters.size(), 1U);
    EXPECT_EQ(project.elements[3].memo.parameters[0].number, 2500.0);
    EXPECT_EQ(project.window.name, "Folha");
    EXPECT_EQ(std::get<WallGeometry>(project.elements[0].geometry).thickness, 0.2);
}

TEST(ParseProject, RefusesWhatIsNoProject) {
    const std::pair<std::string, std::string> cases[] = {
        {"", "o arquivo está vazio"},
        {" \n\t", "o arquivo está vazio"},
        {"projeto", "não é um documento JSON: valor inesperado (byte 0)"},
        {"{\"formato\": 1", "não é um documento JSON: esperava ',' ou '}' (byte 13)"},
        {"[]", "documento: espera-se um objeto, mas há uma lista vazia"},
        {"{}", "documento: falta a chave \"formato\""},
        {"{\"formato\": 1}", "documento: falta a chave \"pavimentos\""},
        {"{\"formato\": \"1\"}",
         "formato: espera-se um número inteiro a partir de 1, mas há o texto \"1\""},
        {"{\"formato\": 0}", "formato: espera-se um número inteiro a partir de 1, mas há 0"},
        {"{\"formato\": 2, \"novidade\": 3}",
         "formato: o projeto é do formato 2, mais novo que o formato 1, o último que este "
         "programa entende"},
        {"{\"formato\": 1, \"pavimentos\": []}",
         "pavimentos: espera-se uma lista de pavimentos, no mínimo 1, mas há uma lista vazia"},
        {"{\"formato\": 1, \"pavimentos\": [{\"indice\": 0, \"nivel\": 0, \"altura\": 3}]}",
         "documento: falta ao menos uma camada"},
        {"{\"formato\": 1, \"elementos\": 3}", "documento: falta a chave \"pavimentos\""},
    };
    for (const auto& [text, error] : cases) {
        EXPECT_EQ(ErrorOf(text), error) << text;
    }
}

TEST(ParseProject, RefusesUnknownKeysAndWrongTypes) {
    const Case cases[] = {
        {"\"nome\": \"Sala\",\n", "\"autor\": \"x\",\n", "documento: chave desconhecida \"autor\""},
        {"\"superficieEsquerda\"", "\"superficieEsqerda\"",
         "elementos[0]: chave desconhecida \"superficieEsqerda\" num elemento \"parede\" (talvez "
         "\"superficieEsquerda\")"},
        {"\"inicio\": [0, 0], \"fim\": [6, 0]", "\"inicio\": [0, 0]",
         "elementos[0]: falta a chave \"fim\""},
        {"\"tipo\": \"zona\"", "\"tipo\": \"quarto\"",
         "elementos[2].tipo: espera-se \"parede\", \"pilar\", \"viga\", \"janela\", \"porta\", "
         "\"objeto\", \"luminaria\", \"laje\", \"cobertura\", \"terreno\", \"cota\", \"texto\", "
         "\"etiqueta\", \"zona\", \"hachura\", \"linha\", \"polilinha\", \"arco\", \"circulo\", "
         "\"spline\", \"ponto\", \"corte\", \"elemento de corte\", \"elevacao\", \"elevacao "
         "interior\", \"fachada cortina\", \"montante\", \"painel\", \"casca\", \"claraboia\", "
         "\"morph\", \"escada\", \"espelho\", \"piso de degrau\", \"estrutura de escada\", "
         "\"guarda-corpo\", \"peca de guarda-corpo\", \"segmento de viga\" ou \"segmento de "
         "pilar\", mas há o texto \"quarto\""},
        {"\"tipo\": \"zona\", ", "", "elementos[2]: falta a chave \"tipo\""},
        {"\"tipo\": \"zona\"", "\"tipo\": \"segmento de pilar\"",
         "elementos[2]: um elemento \"segmento de pilar\" só existe entre as partes de outro"},
        {"{\"tipo\": \"segmento de pilar\"", "{\"tipo\": \"painel\"",
         "elementos[6].partes[0]: um elemento \"painel\" não é parte de \"pilar\""},
        {"\"tipo\": \"parede\",", "\"tipo\": \"parede\", \"forma\": \"laje\",",
         "elementos[0].forma: espera-se \"parede\" ou \"nenhuma\", mas há o texto \"laje\""},
        {"\"tipo\": \"zona\",", "\"tipo\": \"zona\", \"forma\": \"nenhuma\",",
         "elementos[2]: chave desconhecida \"forma\" num elemento \"zona\""},
        {"\"oculta\": true", "\"oculta\": \"sim\"",
         "camadas[1].oculta: espera-se true ou false, mas há o texto \"sim\""},
        {"\"nome\": \"Sala\", \"altura\"", "\"nome\": 7, \"altura\"",
         "elementos[2].nome: espera-se um texto em UTF-8, de no máximo 255 caracteres, mas há 7"},
        {"\"inicio\": [0, 0], \"fim\": [6, 0]", "\"inicio\": [0, 0, 0], \"fim\": [6, 0]",
         "elementos[0].inicio: espera-se um ponto [x, y], mas há uma lista de 3"},
        {"\"pecas\": [", "\"pecas\": [1, ", "pecas[0]: espera-se um objeto, mas há 1"},
        {"\"elementos\": [", "\"elementos\": [null, ",
         "elementos[0]: espera-se um objeto, mas há null"},
        {"[{\"nome\": \"MerivaneZonas\"", "[{\"nome\": \"\"",
         "dados[0].nome: espera-se um texto não vazio em UTF-8, mas há o texto \"\""},
        {"\"texto\": \"abc\"", "\"bytes\": \"0g\"",
         "dados[0].bytes: espera-se pares de dígitos hexadecimais minúsculos, mas há o texto "
         "\"0g\""},
        {"\"texto\": \"abc\"", "\"texto\": \"abc\", \"bytes\": \"00\"",
         "dados[0]: \"texto\" e \"bytes\" se excluem"},
    };
    ExpectRefusals(cases);
}

TEST(ParseProject, RefusesNumbersOutOfTheirRangeAndWhatIsNoNumber) {
    const Case cases[] = {
        {"\"altura\": 2.8", "\"altura\": 0",
         "elementos[2].altura: espera-se um número de 1e-06 a 1000000000, mas há 0"},
        {"\"altura\": 2.8", "\"altura\": null",
         "elementos[2].altura: espera-se um número de 1e-06 a 1000000000, mas há null"},
        {"\"altura\": 2.8", "\"altura\": 1e999",
         "não é um documento JSON: numero invalido (byte 2067)"},
        {"\"posicao\": [3, 2]", "\"posicao\": [3, 1000000001]",
         "elementos[3].posicao[1]: espera-se um número de -1000000000 a 1000000000, mas há "
         "1000000001"},
        {"\"cor\": [1, 1, 1]", "\"cor\": [1, 1, 1.01]",
         "superficies[0].cor[2]: espera-se um número de 0 a 1, mas há 1.01"},
        {"\"indice\": 1", "\"indice\": 2",
         "pavimentos[1].indice: espera-se 1, um a mais que o do pavimento anterior, mas há 2"},
        {"\"numero\": 2", "\"numero\": 1000000",
         "camadas[1].numero: espera-se um número inteiro de 1 a 999999, mas há 1000000"},
        {"\"letras\": 3", "\"letras\": 2.5",
         "elementos[4].paragrafos[0].trechos[0].letras: espera-se um número inteiro de 0 a "
         "1000000000, mas há 2.5"},
        {"[3, 1.5]", "[3, 1.5, 2]",
         "tiposDeLinha[0].tracos: espera-se um número par de comprimentos, traço e vão"},
        {"\"carimbo\": 5", "\"carimbo\": 6",
         "ultimoCarimbo: o último carimbo é menor que o de um elemento, 6"},
        {"\"a\": 1", "\"a\": -1",
         "elementos[3].a: espera-se um número de 0 a 1000000000, mas há -1"},
    };
    ExpectRefusals(cases);
}

TEST(ParseProject, RefusesAGuidThatStandsTwice) {
    const Case cases[] = {
        {"0000000000C3}\", \"pavimento\"", "0000000000C1}\", \"pavimento\"",
         "elementos[2].guid: o GUID {00000000-0000-0000-0000-0000000000C1} já é o de "
         "elementos[0]"},
        {"0000000000C8}", "0000000000c2}",
         "elementos[6].partes[0].guid: o GUID {00000000-0000-0000-0000-0000000000C2} já é o de "
         "elementos[1]"},
        {"0000000000C9}", "0000000000C8}",
         "elementos[7].guid: o GUID {00000000-0000-0000-0000-0000000000C8} já é o de "
         "elementos[6].partes[0]"},
        {"\"guid\": \"{00000000-0000-0000-0000-0000000000D2}",
         "\"guid\": \"{00000000-0000-0000-0000-0000000000B1}",
         "vistas[1].guid: o GUID {00000000-0000-0000-0000-0000000000B1} já é o de janelas[0]"},
        {"0000000000C9}", "000000000009",
         "elementos[7].guid: espera-se um GUID, não só de zeros, como "
         "\"{01234567-89AB-CDEF-0123-456789ABCDEF}\", mas há o texto "
         "\"{00000000-0000-0000-0000-000000000009\""},
        {"0000000000C9}", "000000000000}",
         "elementos[7].guid: espera-se um GUID, não só de zeros, como "
         "\"{01234567-89AB-CDEF-0123-456789ABCDEF}\", mas há o texto "
         "\"{00000000-0000-0000-0000-000000000000}\""},
    };
    ExpectRefusals(cases);
}

TEST(ParseProject, RefusesReferencesToWhatDoesNotExist) {
    const Case cases[] = {
        {"\"camada\": \"Geral\", \"nome\"", "\"camada\": \"Forro\", \"nome\"",
         "elementos[2].camada: nenhuma camada tem o nome \"Forro\""},
        {"\"camada\": \"Geral\", \"nome\"", "\"camada\": 1, \"nome\"",
         "elementos[2].camada: espera-se um nome, mas há 1"},
        {"\"superficieEsquerda\": \"Branco\"", "\"superficieEsquerda\": \"Verde\"",
         "elementos[0].superficieEsquerda: nenhuma superfície tem o nome \"Verde\""},
        {"\"tipoDeLinha\": \"Tracejada\"", "\"tipoDeLinha\": \"Cheia\"",
         "elementos[7].tipoDeLinha: nenhum tipo de linha tem o nome \"Cheia\""},
        {"\"peca\": \"Plafon\"", "\"peca\": \"Spot\"",
         "elementos[3].peca: nenhuma peça tem o nome \"Spot\""},
        {"\"combinacao\": \"Tudo\"", "\"combinacao\": \"Nada\"",
         "vistas[1].combinacao: nenhuma combinação tem o nome \"Nada\""},
        {"[{\"camada\": \"Geral\"}", "[{\"camada\": \"Forro\"}",
         "combinacoes[0].estados[0].camada: nenhuma camada tem o nome \"Forro\""},
        {"0000000000C3}\", \"pavimento\": 0", "0000000000C3}\", \"pavimento\": 2",
         "elementos[2].pavimento: nenhum pavimento tem o índice 2"},
        {"\"ultimoCarimbo\": 5", "\"ultimoCarimbo\": 5, \"pavimentoAtivo\": -1",
         "pavimentoAtivo: nenhum pavimento tem o índice -1"},
        {"\"parede\": \"{00000000-0000-0000-0000-0000000000C1}\"",
         "\"parede\": \"{00000000-0000-0000-0000-0000000000C3}\"",
         "elementos[1].parede: nenhuma parede ou cobertura tem o GUID "
         "{00000000-0000-0000-0000-0000000000C3}"},
        {"\"janela\": \"{00000000-0000-0000-0000-0000000000B1}\"",
         "\"janela\": \"{00000000-0000-0000-0000-0000000000B9}\"",
         "elementos[4].janela: nenhuma janela tem o GUID {00000000-0000-0000-0000-0000000000B9}"},
        {"\"marcador\": \"{00000000-0000-0000-0000-0000000000C6}\"",
         "\"marcador\": \"{00000000-0000-0000-0000-0000000000C5}\"",
         "janelas[1].marcador: nenhum corte e nenhuma elevação tem o GUID "
         "{00000000-0000-0000-0000-0000000000C5}"},
        {"[\"{00000000-0000-0000-0000-0000000000C3}\"]",
         "[\"{00000000-0000-0000-0000-0000000000C8}\"]",
         "selecao[0]: nenhum elemento tem o GUID {00000000-0000-0000-0000-0000000000C8}"},
        {"\"pasta\": \"{00000000-0000-0000-0000-0000000000D1}\"",
         "\"pasta\": \"{00000000-0000-0000-0000-0000000000D2}\"",
         "vistas[1].pasta: a vista deste GUID não é uma pasta"},
        {"\"ehPasta\": true",
         "\"ehPasta\": true, \"pasta\": \"{00000000-0000-0000-0000-0000000000D1}\"",
         "vistas[0].pasta: as pastas contêm umas às outras"},
        {"\"janelaAtual\": {\"tipo\": \"folha de trabalho\"",
         "\"janelaAtual\": {\"tipo\": \"corte\"",
         "janelaAtual: nenhuma janela \"corte\" tem este GUID"},
        {"\"superficieDaPeca\": \"Difusor\"", "\"superficieDaPeca\": \"Vidro\"",
         "pecas[0].corpos: nenhuma superfície da peça tem o nome \"Vidro\""},
    };
    ExpectRefusals(cases);
}

TEST(ParseProject, RefusesNamesThatStandTwice) {
    const Case cases[] = {
        {"\"nome\": \"Paredes\"", "\"nome\": \"Geral\"",
         "camadas[1].nome: o nome \"Geral\" já é de outro item da lista"},
        {"\"numero\": 2", "\"numero\": 1",
         "camadas[1].numero: o número 1 já é de outro item da lista"},
        {"\"nome\": \"mvNome\"", "\"nome\": \"MVFLUXO\"",
         "pecas[0].parametros[1].nome: o nome \"MVFLUXO\" já é de outro parâmetro da peça"},
        {"{\"camada\": \"Paredes\"}", "{\"camada\": \"Geral\"}",
         "combinacoes[0].estados: a camada \"Geral\" aparece duas vezes"},
        {"{\"nome\": \"MerivaneZonas\", \"texto\": \"abc\"}",
         "{\"nome\": \"A\"}, {\"nome\": \"A\"}",
         "dados[1].nome: o nome \"A\" já é de outro item da lista"},
    };
    ExpectRefusals(cases);
}

TEST(ParseProject, RefusesParametersThatArePartlyThere) {
    const std::string longest(31, 'a');
    EXPECT_EQ(ErrorWith("\"nome\": \"mvNome\"", "\"nome\": \"" + longest + "\""), "");
    const Case cases[] = {
        {"\"nome\": \"mvNome\"", "\"nome\": \"" + longest + "a\"",
         "pecas[0].parametros[1].nome: espera-se um nome ASCII sem espaços, de no máximo 31 "
         "caracteres, mas há o texto \"" +
             longest + "a\""},
        {"\"nome\": \"mvNome\"", "\"nome\": \"mvÇ\"",
         "pecas[0].parametros[1].nome: espera-se um nome ASCII sem espaços, de no máximo 31 "
         "caracteres, mas há o texto \"mvÇ\""},
        {"[1, 2, 3, 4]", "[1, 2, 3]",
         "pecas[0].parametros[2].valores: espera-se uma lista de 4 valores (2 x 2), mas há "
         "uma lista de 3"},
        {"\"colunas\": 2,", "",
         "pecas[0].parametros[2].valores: espera-se uma lista de 2 valores (2 x 1), mas há "
         "uma lista de 4"},
        {"\"colunas\": 2,", "\"colunas\": 2, \"valor\": 3,",
         "pecas[0].parametros[2]: chave desconhecida \"valor\""},
        {"\"valor\": 3200", "\"valor\": \"3200\"",
         "pecas[0].parametros[0].valor: espera-se um número, mas há o texto \"3200\""},
        {"\"valor\": \"P1\"", "\"valor\": 1",
         "pecas[0].parametros[1].valor: espera-se um texto em UTF-8, de no máximo 255 caracteres, "
         "mas há 1"},
        {"{\"mvFluxo\": 2500}", "{\"mvFlux\": 2500}",
         "elementos[3].parametros: a peça não tem o parâmetro \"mvFlux\""},
        {"{\"mvFluxo\": 2500}", "{\"mvFluxo\": 2500, \"MVFLUXO\": 1}",
         "elementos[3].parametros: aparece duas vezes o parâmetro \"MVFLUXO\""},
        {"{\"mvFluxo\": 2500}", "{\"mvTabela\": 2500}",
         "elementos[3].parametros.mvTabela: espera-se um objeto, mas há 2500"},
        {"{\"mvFluxo\": 2500}", "{\"mvTabela\": {\"linhas\": 1, \"valores\": []}}",
         "elementos[3].parametros.mvTabela.valores: espera-se uma lista de 1 valor (1 x 1), "
         "mas há uma lista vazia"},
        {"{\"mvFluxo\": 2500}", "[2500]",
         "elementos[3].parametros: espera-se um objeto, mas há uma lista de 1"},
    };
    ExpectRefusals(cases);
}

TEST(ParseProject, RefusesShapesThatCannotBe) {
    const std::string zone = "\"poligono\": [{\"vertices\": [[0, 0], [6, 0], [6, 4], [0, 4]]}]";
    const Case cases[] = {
        {zone, "\"poligono\": [{\"vertices\": [[0, 0], [6, 0]]}]",
         "elementos[2].poligono[0].vertices: espera-se uma lista de pontos, no mínimo 3, mas há "
         "uma lista de 2"},
        {zone, "\"poligono\": []",
         "elementos[2].poligono: espera-se uma lista de contornos, no mínimo 1, mas há uma lista "
         "vazia"},
        {zone, "\"poligono\": [{\"vertices\": [[0, 0], [6, 4], [6, 0], [0, 4]]}]",
         "elementos[2].poligono: os contornos se cruzam ou se sobrepõem, não têm área, ou um furo "
         "está fora do primeiro contorno ou dentro de outro furo"},
        {"[0, 4]]}]", "[0, 4]], \"arcos\": [[4, 0.5]]}]",
         "elementos[2].poligono[0].arcos[0]: o vértice 4 não existe"},
        {"[0, 4]]}]", "[0, 4]], \"arcos\": [[1, 0.5], [1, 0.5]]}]",
         "elementos[2].poligono[0].arcos[1]: o vértice 1 já tem um arco"},
        {"[0, 4]]}]", "[0, 4]], \"arcos\": [[1, 0]]}]",
         "elementos[2].poligono[0].arcos[0][1]: espera-se um ângulo de menos de uma volta e que "
         "não seja 0, mas há 0"},
        {"\"fim\": [6, 0]", "\"fim\": [0, 0]", "elementos[0]: o início e o fim são o mesmo ponto"},
        {"\"fim\": [1, 0]", "\"fim\": [0, 0]", "elementos[7]: o início e o fim são o mesmo ponto"},
        {"\"fim\": [6, 1]", "\"fim\": [0, 1]",
         "janelas[1].linha: o início e o fim são o mesmo ponto"},
        {"[[0, 1, 2]]", "[[0, 1, 3]]",
         "pecas[0].corpos[0].faces[0].contornos[0][2]: espera-se um número inteiro de 0 a 2, mas "
         "há 3"},
        {"\"letras\": 3", "\"letras\": 2",
         "elementos[4]: os trechos não cobrem as letras de cada parágrafo, um parágrafo tem fim de "
         "linha, ou as tabulações não crescem"},
        {"\"luminaria\": true,", "", "elementos[3]: a peça não é de luminária"},
        {"\"nome\": \"Geral\"", "\"nome\": \"Geral\", \"travada\": true",
         "camadas[0]: a camada do menor número não pode ser oculta nem travada"},
        {"\"camada\": \"Geral\", \"nome\": \"Sala\"",
         "\"camada\": \"Geral\", \"janela\": \"{00000000-0000-0000-0000-0000000000B1}\", \"nome\": "
         "\"Sala\"",
         "elementos[2].janela: um elemento deste tipo só fica na planta"},
    };
    ExpectRefusals(cases);
}

TEST(ParseProject, NeitherCrashesNorAcceptsAnyBeginningOfAProject) {
    std::string written = SmallProject;
    for (int form = 0; form < 2; ++form) {
        for (std::size_t length = 0; length < written.size() - 1; ++length) {
            Project project;
            std::string error;
            ASSERT_FALSE(ParseProject(written.substr(0, length), project, error)) << length;
            ASSERT_TRUE(Text::IsPlainText(error)) << error;
        }
        Project project;
        std::string error;
        ASSERT_TRUE(ParseProject(SmallProject, project, error)) << error;
        written = WriteProject(project);
    }
}

TEST(ReadProject, NamesTheFileAndLeavesItAsItIs) {
    const Tests::TemporaryFolder folder;
    const auto path = folder.Path() / "torre.vantoro";
    Project project;
    std::string error;
    EXPECT_FALSE(ReadProject(Text::WidePath(path), project, error));
    EXPECT_EQ(error, "o projeto \"" + path.string() + "\" não existe ou não pode ser lido");
    Tests::WriteBytes(path, "{\"formato\": 1");
    EXPECT_FALSE(ReadProject(Text::WidePath(path), project, error));
    EXPECT_EQ(error,
              "\"" + path.string() + "\": não é um documento JSON: esperava ',' ou '}' (byte 13)");
    EXPECT_EQ(Tests::ReadBytes(path), "{\"formato\": 1");
}

} // namespace Merivane::Workbench
