#include <gtest/gtest.h>

#include "Program/ProgramRun.hpp"

namespace Merivane::Tests {

TEST(CommandLine, RefusesWrongUseWithStatus2AndOneSentence) {
    struct Case {
        std::vector<std::string> arguments;
        std::string error;
    };
    const std::string hint = ".\nVeja \"vantoro --ajuda\".\n";
    const std::string simulateHint = ".\nVeja \"vantoro simular --ajuda\".\n";
    const Case cases[] = {
        {{}, "vantoro: falta o comando" + hint},
        {{"calular"}, "vantoro: comando desconhecido: calular" + hint},
        {{"simular"}, "vantoro: falta CENA" + simulateHint},
        {{"simular", "a.json"}, "vantoro: falta --saida" + simulateHint},
        {{"simular", "a.json", "--saida"}, "vantoro: --saida: falta o valor" + simulateHint},
        {{"simular", "a.json", "--saida", "x", "--saida", "y"},
         "vantoro: --saida: só pode aparecer uma vez" + simulateHint},
        {{"simular", "a.json", "--saida", "x", "--depressa"},
         "vantoro: argumento desconhecido: --depressa" + simulateHint},
        {{"simular", "a.json", "--saida", "x", "--json=talvez"},
         "vantoro: opção sem valor usada com um valor" + simulateHint},
        {{"simular", "a.json", "--saida", "x", "--escala", "2:50"},
         "vantoro: --escala: \"2:50\" não é uma escala de 5 (1:5) a 5000 (1:5000)" + simulateHint},
        {{"simular", "a.json", "--saida", "x", "--escala", "4.9"},
         "vantoro: --escala: \"4.9\" não é uma escala de 5 (1:5) a 5000 (1:5000)" + simulateHint},
        {{"simular", "a.json", "--saida", "x", "--escala", "1:5001"},
         "vantoro: --escala: \"1:5001\" não é uma escala de 5 (1:5) a 5000 (1:5000)" +
             simulateHint},
        {{"simular", "a.json", "--saida", "x", "--escala", "0"},
         "vantoro: --escala: \"0\" não é uma escala de 5 (1:5) a 5000 (1:5000)" + simulateHint},
        {{"simular", "a.json", "--saida", "x", "--valores", "-1"},
         "vantoro: --valores: \"-1\" não é um número maior que zero" + simulateHint},
        {{"simular", "a.json", "--saida", "x", "--paleta", "rosa"},
         "vantoro: --paleta: \"rosa\" não existe (use espectro, calor ou cinza)" + simulateHint},
        {{"simular", "a.json", "--saida", ""}, "vantoro: --saida: falta o valor" + simulateHint},
        {{"simular", "", "--saida", "x"}, "vantoro: CENA: falta o valor" + simulateHint},
        {{"simular", "a.json", "--saida", "x", "--escala", ""},
         "vantoro: --escala: falta o valor" + simulateHint},
        {{"simular", "a.json", "--saida", "x", "--pasta-de-trabalho", ""},
         "vantoro: --pasta-de-trabalho: falta o valor" + simulateHint},
        {{"ies"}, "vantoro: falta ARQUIVO.\nVeja \"vantoro ies --ajuda\".\n"},
        {{"verificar-radiance", "agora"},
         "vantoro: argumento desconhecido: agora.\nVeja \"vantoro verificar-radiance --ajuda\".\n"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.error);
        const ProgramEnd end = RunVantoro(c.arguments);
        EXPECT_EQ(end.status, 2);
        EXPECT_EQ(end.output, "");
        EXPECT_EQ(end.error, c.error);
    }
}

TEST(CommandLine, ShowsItsHelpInPortuguese) {
    for (const std::string flag : {"--ajuda", "-a", "--help"}) {
        const ProgramEnd end = RunVantoro({flag});
        EXPECT_EQ(end.status, 0);
        EXPECT_EQ(end.error, "");
        EXPECT_NE(end.output.find("Uso: vantoro [OPÇÕES] COMANDO"), std::string::npos)
            << end.output;
        for (const std::string command : {"simular", "ies", "verificar-radiance", "comandos",
                                          "executar", "desenhar", "catalogo"}) {
            EXPECT_NE(end.output.find("\n  " + command), std::string::npos) << end.output;
        }
    }
}

TEST(CommandLine, ShowsNoEnglishWordInAnyHelp) {
    for (const std::string command :
         {"simular", "ies", "verificar-radiance", "comandos", "executar", "desenhar", "catalogo"}) {
        const ProgramEnd end = RunVantoro({command, "--ajuda"});
        EXPECT_EQ(end.status, 0);
        for (const std::string word : {"Usage", "OPTIONS", "Options", "REQUIRED", "Positionals",
                                       "TEXT", "Print", "SUBCOMMAND", "Subcommands"}) {
            EXPECT_EQ(end.output.find(word), std::string::npos) << word << "\n" << end.output;
        }
    }
}

TEST(CommandLine, FailsWithOneSentenceWhenStandardOutputIsFull) {
    ProgramCall call;
    call.output = "/dev/full";
    for (const std::string flag : {"--versao", "--ajuda"}) {
        const ProgramEnd end = RunVantoro({flag}, call);
        EXPECT_EQ(end.status, 1);
        EXPECT_EQ(end.error, "vantoro: não foi possível escrever na saída padrão.\n");
    }
}

TEST(CommandLine, TellsItsVersion) {
    const ProgramEnd end = RunVantoro({"--versao"});
    EXPECT_EQ(end.status, 0);
    EXPECT_EQ(end.output, "vantoro 0.1.0\n");
}

} // namespace Merivane::Tests
