#include <string>

#include <gtest/gtest.h>

#include "Support/Places.hpp"
#include "Workbench/Interface/AnswerScript.hpp"

namespace Merivane::Workbench {
namespace {

TEST(AnswerScript, ReadsDialogsAndAlerts) {
    AnswerScript script;
    std::string error;
    ASSERT_TRUE(ParseAnswerScript(R"([
        {"dialogo": "Vantoro: prova", "botao": "OK", "itens": [
            {"item": 4, "entrada": 2}, {"item": 4, "entrada": "Projeto"},
            {"item": 9, "valor": 2.5}, {"item": 7, "marcado": false},
            {"item": 5, "texto": ""}, {"item": 6, "linha": "Sala", "clicarDuasVezes": true},
            {"item": 30, "clicar": true}]},
        {"dialogo": 32650, "fechar": true},
        {"dialogo": 32650},
        {"alerta": "Nada", "botao": 2}])",
                                  script, error))
        << error;
    ASSERT_EQ(script.size(), 4U);
    const DialogAnswer& first = script[0];
    EXPECT_EQ(first.dialog, (NumberOrText{0, "Vantoro: prova"}));
    EXPECT_EQ(first.button, (NumberOrText{0, "OK"}));
    ASSERT_EQ(first.items.size(), 7U);
    EXPECT_EQ(first.items[0].entry, (NumberOrText{2, ""}));
    EXPECT_EQ(first.items[1].entry, (NumberOrText{0, "Projeto"}));
    EXPECT_EQ(first.items[2].value, 2.5);
    EXPECT_EQ(first.items[3].checked, false);
    EXPECT_EQ(first.items[4].text, "");
    EXPECT_EQ(first.items[5].row, (NumberOrText{0, "Sala"}));
    EXPECT_TRUE(first.items[5].doubleClick);
    EXPECT_TRUE(first.items[6].click);
    EXPECT_TRUE(script[1].close);
    EXPECT_EQ(script[2].dialog, (NumberOrText{32650, ""}));
    EXPECT_FALSE(script[2].button);
    EXPECT_EQ(script[3].kind, AnswerKind::Alert);
    EXPECT_EQ(script[3].button, (NumberOrText{2, ""}));
}

TEST(AnswerScript, ReadsWhatTheMouseDoesOnADrawing) {
    AnswerScript script;
    std::string error;
    ASSERT_TRUE(ParseAnswerScript(R"([{"dialogo": 1, "itens": [
        {"item": 3, "apontar": [10, 20.5]},
        {"item": 3, "roda": {"em": [1, 2], "passos": -100}},
        {"item": 3, "arrastar": {"de": [3, 4], "ate": [-5, 6]}}]}])",
                                  script, error))
        << error;
    ASSERT_EQ(script[0].items.size(), 3U);
    EXPECT_EQ(script[0].items[0].point, (Host::ItemPoint{10.0, 20.5}));
    EXPECT_EQ(script[0].items[1].wheel, (WheelTurn{{1.0, 2.0}, -100}));
    EXPECT_EQ(script[0].items[2].drag, (MouseDrag{{3.0, 4.0}, {-5.0, 6.0}}));
}

TEST(AnswerScript, ReadsTheChoiceOfAFile) {
    AnswerScript script;
    std::string error;
    ASSERT_TRUE(ParseAnswerScript(R"([{"arquivo": "Escolha", "caminho": "a/b.ies"},
                                      {"arquivo": "Escolha", "cancelar": true},
                                      {"dialogo": 1}])",
                                  script, error))
        << error;
    EXPECT_EQ(script[0].kind, AnswerKind::File);
    EXPECT_EQ(script[0].dialog, (NumberOrText{0, "Escolha"}));
    EXPECT_EQ(script[0].path, "a/b.ies");
    EXPECT_EQ(script[1].kind, AnswerKind::File);
    EXPECT_EQ(script[1].path, "");
    EXPECT_EQ(script[2].kind, AnswerKind::Dialog);
}

TEST(AnswerScript, RefusesWithThePlace) {
    struct Case {
        std::string text;
        std::string error;
    };
    const Case cases[] = {
        {"{", "o arquivo de respostas não é JSON: esperava o nome de um membro (byte 1)"},
        {"{}", "documento: espera-se uma lista de itens, mas há um objeto"},
        {"[5]", "[0]: espera-se um objeto, mas há 5"},
        {"[{}]", "[0]: falta a chave \"dialogo\""},
        {R"([{"dialogo": true}])", "[0].dialogo: espera-se um número ou um texto, mas há true"},
        {R"([{"dialogo": ""}])",
         "[0].dialogo: espera-se um número ou um texto, mas há o texto \"\""},
        {R"([{"dialogo": 0}])", "[0].dialogo: espera-se um número inteiro de 1 a 32767, mas há 0"},
        {R"([{"dialogo": 32768}])",
         "[0].dialogo: espera-se um número inteiro de 1 a 32767, mas há 32768"},
        {R"([{"dialogo": 1, "itens": 3}])", "[0].itens: espera-se uma lista de itens, mas há 3"},
        {R"([{"dialogo": 1, "itens": [{"item": 2.5, "clicar": true}]}])",
         "[0].itens[0].item: espera-se um número inteiro de 1 a 32767, mas há 2.5"},
        {R"([{"dialogo": 1, "itens": [{"valor": 2}]}])", "[0].itens[0]: falta a chave \"item\""},
        {R"([{"dialogo": 1, "itens": [{"item": 2}]}])",
         "[0].itens[0]: falta dizer o que se faz com o item"},
        {R"([{"dialogo": 1, "itens": [{"item": 2, "clicar": false}]}])",
         "[0].itens[0]: falta dizer o que se faz com o item"},
        {R"([{"dialogo": 1, "itens": [{"item": 2, "valr": 1}]}])",
         "[0].itens[0]: chave desconhecida \"valr\" (talvez \"valor\")"},
        {R"([{"dialogo": 1, "itens": [{"item": 2, "valor": "1"}]}])",
         "[0].itens[0].valor: espera-se um número, mas há o texto \"1\""},
        {R"([{"dialogo": 1, "itens": [{"item": 2, "texto": 1}]}])",
         "[0].itens[0].texto: espera-se um texto em UTF-8, mas há 1"},
        {R"([{"dialogo": 1, "itens": [{"item": 2, "marcado": 1}]}])",
         "[0].itens[0].marcado: espera-se true ou false, mas há 1"},
        {R"([{"dialogo": 1, "botao": 1, "fechar": true}])",
         "[0]: \"botao\" e \"fechar\" não vêm juntos"},
        {R"([{"dialogo": 1, "itens": [{"item": 2, "apontar": [1]}]}])",
         "[0].itens[0].apontar: espera-se um ponto [x, y], mas há uma lista de 1"},
        {R"([{"dialogo": 1, "itens": [{"item": 2, "apontar": [1, 10001]}]}])",
         "[0].itens[0].apontar[1]: espera-se um número de -10000 a 10000, mas há 10001"},
        {R"([{"dialogo": 1, "itens": [{"item": 2, "roda": {"em": [1, 2]}}]}])",
         "[0].itens[0].roda: falta a chave \"passos\""},
        {R"([{"dialogo": 1, "itens": [{"item": 2, "roda": {"em": [1, 2], "passos": 0}}]}])",
         "[0].itens[0].roda: \"passos\" não pode ser 0"},
        {R"([{"dialogo": 1, "itens": [{"item": 2, "roda": {"em": [1, 2], "passos": 101}}]}])",
         "[0].itens[0].roda.passos: espera-se um número inteiro de -100 a 100, mas há 101"},
        {R"([{"dialogo": 1, "itens": [{"item": 2, "arrastar": {"de": [1, 2]}}]}])",
         "[0].itens[0].arrastar: falta a chave \"ate\""},
        {R"([{"arquivo": "a"}])", "[0]: vem \"caminho\" ou \"cancelar\", um dos dois"},
        {R"([{"arquivo": "a", "caminho": "b", "cancelar": true}])",
         "[0]: vem \"caminho\" ou \"cancelar\", um dos dois"},
        {R"([{"arquivo": "a", "caminho": ""}])",
         "[0].caminho: espera-se um texto não vazio, em UTF-8 e numa linha só, mas há o texto "
         "\"\""},
        {R"([{"arquivo": "a", "botao": 1}])",
         "[0]: chave desconhecida \"botao\" na escolha de um arquivo"},
        {R"([{"alerta": "a", "itens": []}])",
         "[0]: chave desconhecida \"itens\" na resposta a um alerta"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.text);
        AnswerScript script(1);
        std::string error;
        EXPECT_FALSE(ParseAnswerScript(c.text, script, error));
        EXPECT_EQ(error, c.error);
        EXPECT_EQ(script.size(), 1U);
    }
}

TEST(AnswerScript, ReadsTheExampleOfItsPage) {
    const std::string page = Tests::ReadBytes(Tests::SourceFolder() / "docs" / "respostas.md");
    const std::size_t begin = page.find("```json\n") + 8;
    AnswerScript script;
    std::string error;
    EXPECT_TRUE(
        ParseAnswerScript(page.substr(begin, page.find("```", begin) - begin), script, error))
        << error;
    EXPECT_EQ(script.size(), 5U);
}

} // namespace
} // namespace Merivane::Workbench
