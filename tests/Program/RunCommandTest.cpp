#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Program/ProgramRun.hpp"
#include "Program/SampleScene.hpp"
#include "Support/Places.hpp"
#include "Text/NativePath.hpp"
#include "Workbench/Project/ProjectFile.hpp"

namespace Merivane::Tests {

namespace {

/// A folder with an empty project, answers and preferences that several calls share.
class RunCommandTest : public testing::Test {
protected:
    RunCommandTest() {
        std::string error;
        EXPECT_TRUE(
            Workbench::SaveProject(Text::WidePath(Project()), Workbench::MakeEmptyProject(), error))
            << error;
        call.folder = folder.Path();
        call.prelude =
            "export XDG_CONFIG_HOME=" + ShellWord((folder.Path() / "config").string()) + ";";
    }

    std::filesystem::path Project() const { return folder.Path() / "p.vantoro"; }

    ProgramEnd Run(std::vector<std::string> arguments) const {
        arguments.insert(arguments.begin(), "executar");
        return RunVantoro(arguments, call);
    }

    ProgramEnd RunWithAnswers(const std::string& answers,
                              std::vector<std::string> arguments) const {
        WriteBytes(folder.Path() / "r.json", answers);
        arguments.insert(arguments.end(), {"--respostas", "r.json"});
        return Run(arguments);
    }

    TemporaryFolder folder;
    ProgramCall call;
};

const std::string ChooseFinal =
    R"json([{"dialogo": "Vantoro: configurações do motor de simulação (Radiance)",
             "itens": [{"item": 4, "entrada": "Apresentação / final"}], "botao": "OK"}])json";

bool Holds(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

TEST_F(RunCommandTest, StoresTheEngineSettingsThatTheAnswersChoose) {
    const ProgramEnd end = RunWithAnswers(ChooseFinal, {"32508", "p.vantoro"});
    EXPECT_EQ(end.status, 0);
    EXPECT_EQ(end.error, "");
    EXPECT_EQ(end.output, "Vantoro: Motor: Apresentação / final (reflexões 3, raios 1024)\n");
    // They belong to the user: the next call finds them, without a project.
    const ProgramEnd next = Run({"32508", "--mostrar-dialogos"});
    EXPECT_EQ(next.status, 0);
    EXPECT_TRUE(Holds(next.output, "\n                     > 3  Apresentação / final\n"))
        << next.output;
    EXPECT_TRUE(Holds(next.output, "Diálogo \"Vantoro: configurações do motor de simulação "
                                   "(Radiance)\" (32650), 720 x 284, aceito\n"))
        << next.output;
}

TEST_F(RunCommandTest, AcceptsDialogsAsTheyStandWithoutAnswers) {
    const ProgramEnd end = Run({"32508"});
    EXPECT_EQ(end.status, 0);
    EXPECT_EQ(end.output, "Vantoro: Motor: Projeto (reflexões 2, raios 1024)\n");
}

TEST_F(RunCommandTest, RefusesAnAnswerThatCanNotBeCarriedOutInOneSentence) {
    struct Case {
        std::string answers;
        std::string error;
    };
    const std::string dialog =
        "vantoro: diálogo \"Vantoro: configurações do motor de simulação (Radiance)\" (32650)";
    const Case cases[] = {
        {R"([{"dialogo": 32650, "itens": [{"item": 9, "valor": 3}]}])",
         dialog + ", item 9: está oculto.\n"},
        {R"([{"dialogo": 32650, "itens": [{"item": 7, "marcado": true},
                                          {"item": 9, "valor": 9}]}])",
         dialog + ", item 9: o valor 9 está fora dos limites (de 0 a 8).\n"},
        {R"([{"dialogo": 32760}])",
         "vantoro: a resposta 1 é para o diálogo 32760, mas está aberto o " + dialog.substr(9) +
             ".\n"},
        {R"([{"dialogo": 32650}, {"alerta": "nada"}])",
         "vantoro: a resposta 2, para o alerta \"nada\", não foi pedida.\n"},
        {R"([{"dialogo": 32650, "itens": [{"item": "9"}]}])", ""},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.answers);
        const ProgramEnd end = RunWithAnswers(c.answers, {"32508", "p.vantoro"});
        EXPECT_EQ(end.status, 1);
        if (!c.error.empty()) {
            EXPECT_EQ(end.error, c.error);
        }
        EXPECT_EQ(std::count(end.error.begin(), end.error.end(), '\n'), 1) << end.error;
    }
}

TEST_F(RunCommandTest, ShowsTheDialogThatRefusedAnAnswer) {
    const ProgramEnd end = RunWithAnswers(R"([{"dialogo": 32650, "itens": [{"item": 99,
        "clicar": true}]}])",
                                          {"32508", "--mostrar-dialogos"});
    EXPECT_EQ(end.status, 1);
    EXPECT_TRUE(Holds(end.output, "(32650), 720 x 284, cancelado\n")) << end.output;
}

TEST_F(RunCommandTest, RefusesAnswersThatItCanNotRead) {
    EXPECT_EQ(Run({"32508", "--respostas", "nenhum.json"}).error,
              "vantoro: não foi possível ler \"nenhum.json\".\n");
    const ProgramEnd end = RunWithAnswers("[{", {"32508"});
    EXPECT_EQ(end.status, 1);
    EXPECT_TRUE(end.error.starts_with("vantoro: \"r.json\": o arquivo de respostas não é JSON: "))
        << end.error;
}

TEST_F(RunCommandTest, ChecksTheRealRadiance) {
    const ProgramEnd end = Run({"Verificar instalacao do Radiance...", "--mostrar-dialogos"});
    EXPECT_EQ(end.status, 0) << end.error;
    EXPECT_TRUE(end.output.starts_with(
        "Vantoro: Teste do Radiance: OK - 9,0 lx calculados, 9,0 lx exatos\n"))
        << end.output;
    EXPECT_TRUE(Holds(end.output, "✓  Radiance instalado corretamente e calculando.\n"));
    EXPECT_TRUE(Holds(end.output, "✓  rtrace - calcula a iluminância\n"));
    EXPECT_TRUE(Holds(end.output, "calculado 9,0 lx,  exato 9,0 lx\n"));
}

TEST_F(RunCommandTest, CancelsOnInterruptAndSaysSo) {
    call.program = CopyProgram(folder.Path());
    ReplaceTool(call.program, "oconv", "kill -INT $PPID\nsleep 60\n");
    const std::string before = ReadBytes(Project());
    const ProgramEnd end = Run({"32502", "p.vantoro"});
    EXPECT_EQ(end.status, 130);
    EXPECT_EQ(end.error, "vantoro: comando cancelado.\n");
    EXPECT_EQ(ReadBytes(Project()), before);
}

TEST_F(RunCommandTest, DrawsTheDialogsAndTheToolbar) {
    EXPECT_EQ(Run({"32508", "--imagens", "imagens"}).status, 0);
    EXPECT_TRUE(ReadBytes(folder.Path() / "imagens" / "dialogo-1-32650.png")
                    .starts_with("\x89PNG\r\n\x1a\n"));
    const ProgramEnd end =
        Run({"barra de ferramentas", "--imagens", "imagens", "--mostrar-dialogos"});
    EXPECT_EQ(end.status, 0) << end.error;
    EXPECT_TRUE(
        ReadBytes(folder.Path() / "imagens" / "paleta-32750.png").starts_with("\x89PNG\r\n\x1a\n"));
    EXPECT_TRUE(Holds(end.output, "(32750)")) << end.output;
}

TEST_F(RunCommandTest, SaysThatTheImagesCanNotBeWritten) {
    const ProgramEnd end = Run({"32508", "--imagens", "p.vantoro"});
    EXPECT_EQ(end.status, 1);
    EXPECT_EQ(end.error, "vantoro: não foi possível criar a pasta \"p.vantoro\".\n");
}

TEST_F(RunCommandTest, NamesCommandsByAPartOfTheirText) {
    for (const std::string name :
         {"32508", "motor", "MOTOR DE SIMULAÇÃO", "Configuracoes do motor de simulacao..."}) {
        EXPECT_EQ(Run({name}).status, 0) << name;
    }
}

TEST_F(RunCommandTest, RefusesWrongUseWithStatus2) {
    struct Case {
        std::vector<std::string> arguments;
        std::string error;
    };
    const Case cases[] = {
        {{}, "falta COMANDO"},
        {{"32499"}, "nenhum comando do menu é \"32499\" (\"vantoro comandos\" mostra todos)"},
        {{"3250"}, "nenhum comando do menu é \"3250\" (\"vantoro comandos\" mostra todos)"},
        {{"cafeteira"},
         "nenhum comando do menu é \"cafeteira\" (\"vantoro comandos\" mostra "
         "todos)"},
        {{"diagnóstico"}, "mais de um comando do menu contém \"diagnóstico\": 32500, 32501, 32506"},
        {{""}, "COMANDO: falta o valor"},
        {{"32508", "--salvar-como", "b.vantoro"}, "--salvar-como: falta PROJETO"},
        {{"32508", "p.vantoro", "q.vantoro"}, "argumento desconhecido: q.vantoro"},
    };
    for (const Case& c : cases) {
        const ProgramEnd end = Run(c.arguments);
        EXPECT_EQ(end.status, 2);
        EXPECT_EQ(end.output, "");
        EXPECT_EQ(end.error, "vantoro: " + c.error + ".\nVeja \"vantoro executar --ajuda\".\n");
    }
}

TEST_F(RunCommandTest, SaysThatACommandIsNotBuilt) {
    const ProgramEnd end = Run({"32521"});
    EXPECT_EQ(end.status, 1);
    EXPECT_EQ(end.output, "");
    EXPECT_EQ(end.error, "vantoro: o comando 32521 (Distribuir luminarias na Zona...) ainda não "
                         "foi construído.\n");
}

TEST_F(RunCommandTest, RefusesAProjectThatItCanNotRead) {
    WriteBytes(folder.Path() / "quebrado.vantoro", "{");
    const ProgramEnd broken = RunWithAnswers(ChooseFinal, {"32508", "quebrado.vantoro"});
    EXPECT_EQ(broken.status, 1);
    EXPECT_TRUE(Holds(broken.error, "quebrado.vantoro")) << broken.error;
    EXPECT_EQ(ReadBytes(folder.Path() / "quebrado.vantoro"), "{");
    EXPECT_EQ(Run({"32508", "nenhum.vantoro"}).status, 1);
    EXPECT_EQ(broken.output, ""); // no command ran
}

TEST_F(RunCommandTest, LeavesAProjectThatTheCommandDidNotChange) {
    const auto written = std::filesystem::last_write_time(Project());
    EXPECT_EQ(Run({"32508", "p.vantoro"}).status, 0);
    EXPECT_EQ(std::filesystem::last_write_time(Project()), written);
}

TEST_F(RunCommandTest, SavesTheProjectUnderAnotherName) {
    const ProgramEnd end = Run({"32508", "p.vantoro", "--salvar-como", "q.vantoro"});
    EXPECT_EQ(end.status, 0) << end.error;
    EXPECT_TRUE(end.output.ends_with("Projeto gravado: q.vantoro\n")) << end.output;
    EXPECT_EQ(ReadBytes(folder.Path() / "q.vantoro"), ReadBytes(Project()));
}

TEST_F(RunCommandTest, DoesNotSaveWhereAnAnswerWasRefused) {
    const ProgramEnd end =
        RunWithAnswers(R"([{"dialogo": 1}])", {"32508", "p.vantoro", "--salvar-como", "q.vantoro"});
    EXPECT_EQ(end.status, 1);
    EXPECT_FALSE(std::filesystem::exists(folder.Path() / "q.vantoro"));
}

TEST_F(RunCommandTest, SaysThatTheProjectCanNotBeSaved) {
    const ProgramEnd end = Run({"32508", "p.vantoro", "--salvar-como", "sem/pasta.vantoro"});
    EXPECT_EQ(end.status, 1);
    EXPECT_TRUE(Holds(end.error, "sem/pasta.vantoro")) << end.error;
}

} // namespace
} // namespace Merivane::Tests
