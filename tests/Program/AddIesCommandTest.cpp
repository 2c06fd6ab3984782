#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Archicad/ModelSample.hpp"
#include "Program/ProgramRun.hpp"
#include "Program/SampleProject.hpp"
#include "Support/Places.hpp"

namespace Merivane::Tests {

namespace {

constexpr std::uint32_t Lamp = 2;

/// A folder with a project whose only lamp is selected, an IES file and a home of its own.
class AddIesProgram : public testing::Test {
protected:
    AddIesProgram() {
        Workbench::Project project = SampleProject();
        AddLamp(project, Lamp, AddLampPart(project, "Plafon"), {2.0, 3.0});
        project.selection = {NumberedGuid(Lamp)};
        SaveSample(folder.Path() / "p.vantoro", project);
        WriteBytes(folder.Path() / "spot.ies",
                   "IESNA:LM-63-2002\n[LUMCAT] LX-200\nTILT=NONE\n1 1000 1 3 1 1 2 0.1 0.2 0\n1 1 "
                   "10\n0 45 90\n0\n100 50 0\n");
        call.folder = folder.Path();
        const std::string home = ShellWord(folder.Path().string());
        call.prelude = "export HOME=" + home + " XDG_CONFIG_HOME=" + home + "/config;";
    }

    ProgramEnd Run(const std::string& answers, std::vector<std::string> arguments = {}) const {
        WriteBytes(folder.Path() / "r.json", answers);
        arguments.insert(arguments.begin(),
                         {"executar", "32503", "p.vantoro", "--respostas", "r.json"});
        return RunVantoro(arguments, call);
    }

    TemporaryFolder folder;
    ProgramCall call;
};

const std::string ChooseSpot =
    R"({"arquivo": "Escolha o arquivo IES da luminaria", "caminho": "spot.ies"})";

bool Holds(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

TEST_F(AddIesProgram, MakesALuminaireOfTheSelectedLampAndSavesTheProject) {
    const ProgramEnd end = Run("[" + ChooseSpot + R"(, {"dialogo": 32600, "itens": [
        {"item": 27, "texto": "Spot"}, {"item": 45, "valor": 20}], "botao": "OK"}])",
                               {"--mostrar-dialogos", "--imagens", "imagens"});
    EXPECT_EQ(end.status, 0) << end.error;
    const std::string part =
        (folder.Path() / "Documents" / "Vantoro Library" / "Spot.gsm").string();
    EXPECT_TRUE(Holds(end.output, "Vantoro: peca criada: \"Spot\" em " + part + "\n"))
        << end.output;
    EXPECT_TRUE(Holds(end.output, "Vantoro: fotometria: 228 lm (da tabela), fator de manutencao "
                                  "0,80\nVantoro: objeto colocado trocado pela luminaria (mesmo "
                                  "elemento).\n"))
        << end.output;
    EXPECT_TRUE(Holds(end.output, "Arquivo \"Escolha o arquivo IES da luminaria\" [Fotometria IES "
                                  "(*.ies)]\n      spot.ies\n"))
        << end.output;
    EXPECT_TRUE(std::filesystem::exists(part));
    EXPECT_TRUE(ReadBytes(folder.Path() / "imagens" / "dialogo-1-32600.png")
                    .starts_with("\x89PNG\r\n\x1a\n"));
    EXPECT_TRUE(Holds(ReadBytes(folder.Path() / "p.vantoro"), "Spot"));
}

TEST_F(AddIesProgram, RefusesAFileThatIsNotThereAndLeavesTheProject) {
    const std::string before = ReadBytes(folder.Path() / "p.vantoro");
    const ProgramEnd end =
        Run(R"([{"arquivo": "Escolha o arquivo IES da luminaria", "caminho": "nenhum.ies"}])");
    EXPECT_EQ(end.status, 1);
    EXPECT_EQ(end.error, "vantoro: a escolha de arquivo \"Escolha o arquivo IES da luminaria\": "
                         "não há o arquivo \"nenhum.ies\".\n");
    EXPECT_EQ(ReadBytes(folder.Path() / "p.vantoro"), before);
}

TEST_F(AddIesProgram, FailsWhereTheCommandTellsThatItDidNothing) {
    const std::string before = ReadBytes(folder.Path() / "p.vantoro");
    WriteBytes(folder.Path() / "spot.ies", "IESNA:LM-63-2002\nTILT=NONE\n1 1000\n");
    const ProgramEnd end = Run("[" + ChooseSpot + "]");
    EXPECT_EQ(end.status, 1);
    EXPECT_EQ(end.output, "Vantoro: O arquivo IES foi recusado: arquivo termina antes de "
                          "multiplicador de candela\n");
    EXPECT_EQ(ReadBytes(folder.Path() / "p.vantoro"), before);
}

TEST_F(AddIesProgram, AsksForAnAnswerToTheChoiceOfTheFile) {
    const ProgramEnd end = Run("[]");
    EXPECT_EQ(end.status, 1);
    EXPECT_EQ(end.error, "vantoro: a escolha de arquivo \"Escolha o arquivo IES da luminaria\" não "
                         "tem resposta.\n");
}

} // namespace
} // namespace Merivane::Tests
