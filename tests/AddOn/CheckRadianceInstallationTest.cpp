#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "AddOn/AddOnSession.hpp"
#include "AddOn/Commands/CheckRadianceInstallation.hpp"
#include "AddOn/Entry/ResourceIds.hpp"
#include "Support/Variable.hpp"
#include "Text/NativePath.hpp"

namespace Merivane::Diagnostics {
namespace {

namespace Item = ResourceIds::RadianceCheck;

using Tests::LastItem;

class RadianceCheck : public Tests::AddOnSession {
protected:
    RadianceCheck() : path("PATH", "/usr/bin:/bin"), variable("RADIANCE", std::nullopt) {
        Workbench::CurrentSession().options.ownLocation =
            Text::WidePath(Tests::BuildFolder() / "Vantoro.apx");
    }

    /// An installation of its own beside the add-on: links to the real programs.
    std::filesystem::path CopyInstallation() const {
        const std::filesystem::path real = Tests::BuildFolder() / "Vantoro Radiance";
        std::filesystem::path copy = Folder() / "Vantoro Radiance";
        std::filesystem::create_directories(copy / "bin");
        for (const std::string tool : {"ies2rad", "xform", "oconv", "rtrace"}) {
            std::filesystem::create_symlink(real / "bin" / tool, copy / "bin" / tool);
        }
        std::filesystem::create_directory_symlink(real / "lib", copy / "lib");
        Workbench::CurrentSession().options.ownLocation = Text::WidePath(Folder() / "Vantoro.apx");
        return copy;
    }

    static void ReplaceTool(const std::filesystem::path& tool, const std::string& script) {
        std::filesystem::remove(tool);
        Tests::WriteBytes(tool, "#!/bin/sh\n" + script);
        std::filesystem::permissions(tool, std::filesystem::perms::owner_all);
    }

    static void Check(std::string_view items = "") {
        Tests::PrepareAnswer(Item::Dialog, items, Item::Close);
        CheckRadianceInstallation();
        Tests::ExpectAnswered();
    }

    static std::vector<std::int16_t> Usable() {
        return Tests::UsableItems({Item::Close, Item::TestAgain, Item::OpenFolder});
    }

    static std::string Verdict() { return LastItem(Item::Verdict).text; }

    Tests::Variable path;
    Tests::Variable variable;
};

using Items = std::vector<std::int16_t>;

TEST_F(RadianceCheck, CalculatesWithTheInstallationBesideTheAddOn) {
    Check();
    const std::string place = (Tests::BuildFolder() / "Vantoro Radiance").string();
    EXPECT_EQ(Tests::LastDialog().title, "Vantoro: instalação do Radiance");
    EXPECT_EQ(Verdict(), "✓  Radiance instalado corretamente e calculando.");
    const std::string installation = LastItem(Item::InstallationBox).text;
    EXPECT_TRUE(installation.starts_with(
        "Origem: cópia embutida no Vantoro (a versão testada)\nVersão: RADIANCE "))
        << installation;
    EXPECT_TRUE(
        installation.ends_with("\nProgramas: " + place + "/bin\nBiblioteca: " + place + "/lib"))
        << installation;
    EXPECT_EQ(LastItem(Item::ToolsBox).text, "✓  ies2rad - converte a fotometria IES\n"
                                             "✓  xform - posiciona cada luminária\n"
                                             "✓  oconv - monta a cena\n"
                                             "✓  rtrace - calcula a iluminância");
    EXPECT_TRUE(LastItem(Item::TestBox)
                    .text.starts_with("Fonte de 1000 lm a 3 m, ponto logo abaixo:\n  calculado "
                                      "9,0 lx,  exato 9,0 lx\n  maior diferença 0,"))
        << LastItem(Item::TestBox).text;
    EXPECT_EQ(Usable(), (Items{Item::Close, Item::TestAgain, Item::OpenFolder}));
    EXPECT_EQ(Tests::ReportWindow(),
              std::vector<std::string>{
                  "Vantoro: Teste do Radiance: OK - 9,0 lx calculados, 9,0 lx exatos"});
}

TEST_F(RadianceCheck, WorksInTheSystemsTemporaryFolder) {
    Check();
    EXPECT_TRUE(std::filesystem::is_directory(Folder() / "Vantoro" / "teste_radiance"));
}

TEST_F(RadianceCheck, TestsAgainWhenAsked) {
    Check(R"({"item": 9, "clicar": true})");
    EXPECT_EQ(Tests::ReportWindow().size(), 2U);
    EXPECT_EQ(Verdict(), "✓  Radiance instalado corretamente e calculando.");
}

TEST_F(RadianceCheck, LooksForTheInstallationAgainWhenItTestsAgain) {
    const std::filesystem::path copy = CopyInstallation();
    // The first test takes its own program away, as an uninstaller would.
    ReplaceTool(copy / "bin" / "oconv",
                "rm \"" + (copy / "bin" / "oconv").string() + "\"\nexit 1\n");
    Check(R"({"item": 9, "clicar": true})");
    EXPECT_EQ(Verdict(), "✗  Instalação incompleta - faltam programas do Radiance.");
    EXPECT_EQ(Usable(), (Items{Item::Close, Item::OpenFolder}));
}

TEST_F(RadianceCheck, OpensTheFolderOfThePrograms) {
    Check(R"({"item": 10, "clicar": true})");
    EXPECT_EQ(Workbench::CurrentSession().shownFolders,
              std::vector<std::wstring>{
                  Text::WidePath(Tests::BuildFolder() / "Vantoro Radiance" / "bin")});
}

TEST_F(RadianceCheck, ReportsAFolderThatDoesNotOpen) {
    Workbench::CurrentSession().options.showFolder = [](const std::wstring&) { return false; };
    Check(R"({"item": 10, "clicar": true})");
    ASSERT_EQ(Tests::ReportWindow().size(), 2U);
    EXPECT_EQ(Tests::ReportWindow()[1], "Vantoro: Abrir pasta failed: APIERR_GENERAL (0x81060001)");
}

TEST_F(RadianceCheck, SaysWhereItLookedInVain) {
    CopyInstallation();
    std::filesystem::remove_all(Folder() / "Vantoro Radiance");
    Check();
    EXPECT_EQ(Verdict(), "✗  Radiance não encontrado - reinstale o Vantoro.");
    EXPECT_TRUE(LastItem(Item::InstallationBox)
                    .text.starts_with("Pastas procuradas:\n  " +
                                      (Folder() / "Vantoro Radiance" / "bin").string()))
        << LastItem(Item::InstallationBox).text;
    EXPECT_EQ(LastItem(Item::TestBox).text, "Não executado: falta(m) programa(s) do Radiance.");
    EXPECT_EQ(Usable(), Items{Item::Close});
    EXPECT_TRUE(Tests::ReportWindow().empty());
}

TEST_F(RadianceCheck, RunsNoTestWhereAProgramIsMissing) {
    std::filesystem::remove(CopyInstallation() / "bin" / "oconv");
    Check();
    EXPECT_EQ(Verdict(), "✗  Instalação incompleta - faltam programas do Radiance.");
    EXPECT_EQ(LastItem(Item::ToolsBox).text, "✓  ies2rad - converte a fotometria IES\n"
                                             "✓  xform - posiciona cada luminária\n"
                                             "✗  oconv - monta a cena  (FALTANDO)\n"
                                             "✓  rtrace - calcula a iluminância");
    EXPECT_EQ(LastItem(Item::TestBox).text, "Não executado: falta(m) programa(s) do Radiance.");
    EXPECT_EQ(Usable(), (Items{Item::Close, Item::OpenFolder}));
    EXPECT_TRUE(Tests::ReportWindow().empty());
}

TEST_F(RadianceCheck, WarnsWhereTheResultIsOffByThreePercent) {
    const std::string real =
        "\"" + (Tests::BuildFolder() / "Vantoro Radiance/bin/rtrace").string() + "\"";
    ReplaceTool(CopyInstallation() / "bin" / "rtrace",
                "if [ \"$1\" = -version ]; then exec " + real + " -version; fi\n" + real +
                    " \"$@\" | awk '{ print $1 * 1.03, $2 * 1.03, $3 * 1.03 }'\n");
    Check();
    EXPECT_EQ(Verdict(), "⚠  O Radiance calcula, mas o resultado do teste não confere.");
    EXPECT_NE(LastItem(Item::TestBox).text.find("calculado 9,3 lx,  exato 9,0 lx\n"),
              std::string::npos)
        << LastItem(Item::TestBox).text;
    EXPECT_EQ(Tests::ReportWindow(),
              std::vector<std::string>{
                  "Vantoro: Teste do Radiance: FALHOU - 9,3 lx calculados, 9,0 lx exatos"});
}

TEST_F(RadianceCheck, SaysWhyTheProgramsDoNotCalculate) {
    ReplaceTool(CopyInstallation() / "bin" / "oconv", "echo 'oconv: fatal - nada' >&2\nexit 1\n");
    Check();
    EXPECT_EQ(Verdict(), "✗  Os programas existem, mas o Radiance não conseguiu calcular.");
    EXPECT_TRUE(LastItem(Item::TestBox)
                    .text.starts_with("O Radiance não conseguiu calcular:\nmontagem da cena "
                                      "(oconv): oconv terminou com erro 1: oconv: fatal - nada"))
        << LastItem(Item::TestBox).text;
    EXPECT_EQ(Usable(), (Items{Item::Close, Item::TestAgain, Item::OpenFolder}));
}

TEST_F(RadianceCheck, EndsATestThatTheUserStops) {
    ReplaceTool(CopyInstallation() / "bin" / "oconv", "sleep 60\n");
    Workbench::CurrentSession().options.cancelAsked = [] { return true; };
    Check();
    EXPECT_EQ(LastItem(Item::TestBox).text,
              "O Radiance não conseguiu calcular:\nteste: calculo cancelado");
}

TEST_F(RadianceCheck, SaysThatThereIsNoTemporaryFolder) {
    // The log's three first lines ask for it before.
    Workbench::FailCall("GetTemporaryFolder", 4, Host::GeneralError);
    Check();
    EXPECT_EQ(LastItem(Item::TestBox).text, "O Radiance não conseguiu calcular:\n"
                                            "a pasta temporária do sistema não foi encontrada");
}

TEST_F(RadianceCheck, BeginsALogOfItsOwn) {
    Check();
    const std::string log = Tests::ReadBytes(Folder() / "Vantoro" / "relatorio.txt");
    EXPECT_NE(log.find("  === Verificar instalacao do Radiance\n"), std::string::npos) << log;
    EXPECT_NE(log.find("  Teste do Radiance: OK - "), std::string::npos) << log;
}

TEST_F(RadianceCheck, HasTheMarkInTheDarkInterface) {
    Open(true);
    Check();
    EXPECT_EQ(LastItem(11).icon, 10203);
}

TEST_F(RadianceCheck, IsReportedWhereTheHostDoesNotShowIt) {
    Workbench::FailCall("RunDialog", 1, Host::BadId);
    CheckRadianceInstallation();
    EXPECT_EQ(Tests::ReportWindow(),
              std::vector<std::string>{
                  "Vantoro: Verificar instalacao do Radiance failed: APIERR_BADID (0x81060065)"});
}

} // namespace
} // namespace Merivane::Diagnostics
