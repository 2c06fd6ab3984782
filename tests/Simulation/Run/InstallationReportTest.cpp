#include <gtest/gtest.h>

#include "Simulation/Run/InstallationReport.hpp"

namespace Merivane::Simulation {
namespace {

using Radiance::Installation;

Installation Complete() {
    Installation installation;
    installation.complete = true;
    installation.source = Radiance::SourceAddOn;
    installation.binFolder = L"/opt/Vantoro Radiance/bin";
    installation.libFolder = L"/opt/Vantoro Radiance/lib";
    installation.version = "RADIANCE 6.0a";
    return installation;
}

Installation Incomplete() {
    Installation installation = Complete();
    installation.complete = false;
    installation.missingTools = {"xform", "oconv"};
    return installation;
}

Installation Nothing() {
    Installation installation;
    installation.missingTools = {};
    installation.searchedFolders = {L"/opt/vantoro/Vantoro Radiance/bin",
                                    L"/usr/local/radiância/bin"};
    return installation;
}

SelfTestResult Passed() {
    return {.ran = true,
            .passed = true,
            .calculated = 8.9904,
            .exact = 9.04999,
            .largestDifference = 0.00012,
            .seconds = 0.25,
            .message = {}};
}

TEST(VerdictLine, TakesTheFirstThatHolds) {
    SelfTestResult wrong = Passed();
    wrong.passed = false;
    const SelfTestResult failed{.message = "x"};
    EXPECT_EQ(VerdictLine(Nothing(), Passed()),
              "✗  Radiance não encontrado - reinstale o Vantoro.");
    EXPECT_EQ(VerdictLine(Incomplete(), Passed()),
              "✗  Instalação incompleta - faltam programas do Radiance.");
    EXPECT_EQ(VerdictLine(Complete(), Passed()),
              "✓  Radiance instalado corretamente e calculando.");
    EXPECT_EQ(VerdictLine(Complete(), wrong),
              "⚠  O Radiance calcula, mas o resultado do teste não confere.");
    EXPECT_EQ(VerdictLine(Complete(), failed),
              "✗  Os programas existem, mas o Radiance não conseguiu calcular.");
}

TEST(InstallationText, TellsOriginVersionAndFolders) {
    EXPECT_EQ(InstallationText(Complete()),
              "Origem: cópia embutida no Vantoro (a versão testada)\nVersão: RADIANCE 6.0a\n"
              "Programas: /opt/Vantoro Radiance/bin\nBiblioteca: /opt/Vantoro Radiance/lib");
    Installation separate = Complete();
    separate.source = Radiance::SourceSystem;
    separate.libFolder.clear();
    separate.version.clear();
    EXPECT_EQ(InstallationText(separate),
              "Origem: instalação separada no sistema\nVersão: (o rtrace não respondeu)\n"
              "Programas: /opt/Vantoro Radiance/bin\nBiblioteca: não encontrada");
}

TEST(InstallationText, NamesTheFoldersSearchedWhenNothingWasFound) {
    EXPECT_EQ(InstallationText(Nothing()),
              "Pastas procuradas:\n  /opt/vantoro/Vantoro Radiance/bin\n"
              "  /usr/local/radiância/bin");
    EXPECT_EQ(InstallationText({}), "Pastas procuradas:");
}

TEST(ToolsText, MarksEachProgram) {
    EXPECT_EQ(ToolsText(Complete()), "✓  ies2rad - converte a fotometria IES\n"
                                     "✓  xform - posiciona cada luminária\n"
                                     "✓  oconv - monta a cena\n"
                                     "✓  rtrace - calcula a iluminância");
    EXPECT_EQ(ToolsText(Incomplete()), "✓  ies2rad - converte a fotometria IES\n"
                                       "✗  xform - posiciona cada luminária  (FALTANDO)\n"
                                       "✗  oconv - monta a cena  (FALTANDO)\n"
                                       "✓  rtrace - calcula a iluminância");
    EXPECT_EQ(ToolsText(Nothing()), "✗  ies2rad - converte a fotometria IES  (FALTANDO)\n"
                                    "✗  xform - posiciona cada luminária  (FALTANDO)\n"
                                    "✗  oconv - monta a cena  (FALTANDO)\n"
                                    "✗  rtrace - calcula a iluminância  (FALTANDO)");
}

TEST(TestText, ShowsTheNumbersOrWhyThereAreNone) {
    EXPECT_EQ(TestText(Incomplete(), Passed()), "Não executado: falta(m) programa(s) do Radiance.");
    EXPECT_EQ(TestText(Nothing(), Passed()), "Não executado: falta(m) programa(s) do Radiance.");
    EXPECT_EQ(TestText(Complete(), {.message = "calculo cancelado"}),
              "O Radiance não conseguiu calcular:\ncalculo cancelado");
    EXPECT_EQ(TestText(Complete(), Passed()),
              "Fonte de 1000 lm a 3 m, ponto logo abaixo:\n  calculado 9,0 lx,  exato 9,0 lx\n"
              "  maior diferença 0,01 % (aceito até 2 %),  0,3 s");
    SelfTestResult wrong = Passed(); // three per cent off: the numbers are shown all the same
    wrong.passed = false;
    wrong.calculated = 8.7;
    wrong.largestDifference = 0.03;
    EXPECT_EQ(TestText(Complete(), wrong),
              "Fonte de 1000 lm a 3 m, ponto logo abaixo:\n  calculado 8,7 lx,  exato 9,0 lx\n"
              "  maior diferença 3,00 % (aceito até 2 %),  0,3 s");
}

TEST(TestLogLine, IsOneLine) {
    EXPECT_EQ(TestLogLine(Passed()), "Teste do Radiance: OK - 9,0 lx calculados, 9,0 lx exatos");
    SelfTestResult wrong = Passed();
    wrong.passed = false;
    EXPECT_EQ(TestLogLine(wrong), "Teste do Radiance: FALHOU - 9,0 lx calculados, 9,0 lx exatos");
    EXPECT_EQ(TestLogLine({.message = "calculo cancelado"}),
              "Teste do Radiance: FALHOU - calculo cancelado");
}

} // namespace
} // namespace Merivane::Simulation
