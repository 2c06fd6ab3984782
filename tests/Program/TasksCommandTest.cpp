#include <gtest/gtest.h>

#include "Catalog/Json.hpp"
#include "Program/ProgramRun.hpp"

namespace Merivane::Tests {

TEST(TasksCommand, TellsTheActivitiesThatATextSpeaksOf) {
    const ProgramEnd end = RunVantoro({"atividades", "REUNIAO conferência"});
    EXPECT_EQ(end.status, 0);
    EXPECT_EQ(end.error, "");
    EXPECT_EQ(
        end.output,
        R"(22. Escritórios                                                                Em lx    U0  UGRL  Ra
  s22.5   Salas de reunião e conferência                                         500  0,70    19  80
            Obs.: Recomenda-se que a iluminação seja controlável.
)");
}

TEST(TasksCommand, TakesWordsWithoutQuotes) {
    EXPECT_EQ(RunVantoro({"atividades", "REUNIAO", "conferência"}).output,
              RunVantoro({"atividades", "REUNIAO conferência"}).output);
}

TEST(TasksCommand, TellsTheWholeTableWithoutAText) {
    const ProgramEnd end = RunVantoro({"atividades"});
    EXPECT_EQ(end.status, 0);
    EXPECT_TRUE(end.output.starts_with("1. Áreas gerais da edificação ")) << end.output;
    EXPECT_NE(end.output.find("\n  s31.2   Cadeira, altar, púlpito "), std::string::npos);
}

TEST(TasksCommand, GivesAListToAProgram) {
    const ProgramEnd end = RunVantoro({"atividades", "--json", "varejo"});
    EXPECT_EQ(end.status, 0) << end.error;
    Catalog::JsonValue list;
    ASSERT_TRUE(Catalog::JsonParse(end.output, list).ok) << end.output;
    ASSERT_EQ(list.items.size(), 4U);
    EXPECT_EQ(list.items[1].StringOr("id", ""), "s23.2");
    EXPECT_EQ(list.items[1].NumberOr("Em", 0), 500.0);
}

TEST(TasksCommand, FailsAndNamesTheTextWhenNothingIsFound) {
    const ProgramEnd end = RunVantoro({"atividades", "garagem de foguetes"});
    EXPECT_EQ(end.status, 1);
    EXPECT_EQ(end.output, "");
    EXPECT_EQ(end.error, "vantoro: nenhuma atividade da tabela contém \"garagem de foguetes\".\n");
    const ProgramEnd json = RunVantoro({"atividades", "--json", "foguetes"});
    EXPECT_EQ(json.status, 1);
    EXPECT_EQ(json.output, "[]\n");
    EXPECT_EQ(json.error, "vantoro: nenhuma atividade da tabela contém \"foguetes\".\n");
}

} // namespace Merivane::Tests
