#include <gtest/gtest.h>

#include "Program/ProgramRun.hpp"

namespace Merivane::Tests {

TEST(ListCommands, TellsTheGroupsWithTheirNumbersAndTexts) {
    const ProgramEnd end = RunVantoro({"comandos"});
    EXPECT_EQ(end.status, 0);
    EXPECT_EQ(end.error, "");
    const std::string begin = "1. Catalogo de luminarias\n"
                              "  32520  Catalogo online de luminarias...";
    EXPECT_TRUE(end.output.starts_with(begin)) << end.output;
    std::size_t place = 0;
    for (const std::string group :
         {"1. Catalogo de luminarias", "2. Novas fontes de luz", "3. Distribuicao", "4. Calculo",
          "5. Documentacao", "6. Analise e tabelas", "Barra de ferramentas e diagnosticos"}) {
        place = end.output.find(group + "\n", place);
        EXPECT_NE(place, std::string::npos) << group;
    }
    EXPECT_EQ(std::count(end.output.begin(), end.output.end(), '\n'), 7 + 23);
    EXPECT_EQ(end.output.find('^'), std::string::npos);
}

TEST(ListCommands, TellsWhichOnesAreNotBuilt) {
    const std::string output = RunVantoro({"comandos"}).output;
    for (const std::string line :
         {"\n  32508  Configuracoes do motor de simulacao...\n",
          "\n  32523  Mostrar / ocultar a barra de ferramentas\n",
          "\n  32502  Verificar instalacao do Radiance...\n",
          "\n  32513  Converter polilinha / spline em luminaria linear (fita de LED)...  ainda não "
          "construído\n",
          "\n  32521  Distribuir luminarias na Zona...                                   ainda não "
          "construído\n"}) {
        EXPECT_NE(output.find(line), std::string::npos) << line << output;
    }
}

} // namespace Merivane::Tests
