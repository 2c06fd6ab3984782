#include <gtest/gtest.h>

#include "Program/ProgramRun.hpp"
#include "Program/SampleScene.hpp"
#include "Support/Places.hpp"

namespace Merivane::Tests {

namespace {

ProgramEnd CheckWithTool(const std::string& tool, const std::string& script) {
    const TemporaryFolder place;
    ProgramCall call;
    call.program = CopyProgram(place.Path());
    call.prelude = "PATH=/usr/bin:/bin; unset RADIANCE;";
    ReplaceTool(call.program, tool, script);
    return RunVantoro({"verificar-radiance"}, call);
}

std::string FirstLine(const std::string& text) {
    return text.substr(0, text.find('\n'));
}

} // namespace

TEST(CheckRadiance, FindsTheInstallationBesideTheProgramAndCalculates) {
    const ProgramEnd end = RunVantoro({"verificar-radiance"});
    EXPECT_EQ(end.status, 0) << end.error;
    EXPECT_EQ(FirstLine(end.output), "✓  Radiance instalado corretamente e calculando.");
    EXPECT_NE(end.output.find("Origem: cópia embutida no Vantoro (a versão testada)\n"),
              std::string::npos)
        << end.output;
    EXPECT_NE(end.output.find("exato 9,0 lx"), std::string::npos) << end.output;
}

TEST(CheckRadiance, WorksWhereItsSharedFolderCannotBeMade) {
    const TemporaryFolder temporary;
    WriteBytes(temporary.Path() / "Vantoro", "of another user of the machine");
    ProgramCall call;
    call.prelude = "export TMPDIR=" + ShellWord(temporary.Path().string()) + ";";
    const ProgramEnd end = RunVantoro({"verificar-radiance"}, call);
    EXPECT_EQ(end.status, 0) << end.error;
    EXPECT_EQ(FirstLine(end.output), "✓  Radiance instalado corretamente e calculando.");
    EXPECT_FALSE(std::filesystem::exists(temporary.Path() / "vantoro-1"));
}

TEST(CheckRadiance, StopsOnInterruptAndSaysSo) {
    const TemporaryFolder place;
    ProgramCall call;
    call.program = CopyProgram(place.Path());
    ReplaceTool(call.program, "oconv", "kill -INT $PPID\nsleep 60\n");
    const ProgramEnd end = RunVantoro({"verificar-radiance"}, call);
    EXPECT_EQ(end.status, 130);
    EXPECT_EQ(end.output, "");
    EXPECT_EQ(end.error, "vantoro: verificação cancelada.\n");
}

TEST(CheckRadiance, SaysThatThereIsNone) {
    const ProgramEnd end = CheckWithTool("rtrace", "");
    EXPECT_EQ(end.status, 1);
    EXPECT_EQ(FirstLine(end.output), "✗  Radiance não encontrado - reinstale o Vantoro.");
    EXPECT_NE(end.output.find("Pastas procuradas:\n  "), std::string::npos) << end.output;
}

TEST(CheckRadiance, SaysWhichProgramIsMissing) {
    const ProgramEnd end = CheckWithTool("oconv", "");
    EXPECT_EQ(end.status, 1);
    EXPECT_EQ(FirstLine(end.output), "✗  Instalação incompleta - faltam programas do Radiance.");
    EXPECT_NE(end.output.find("(FALTANDO)"), std::string::npos) << end.output;
}

TEST(CheckRadiance, WarnsWhereTheResultIsOffByThreePercent) {
    const std::string real =
        ShellWord((BuildFolder() / "Vantoro Radiance" / "bin" / "rtrace").string());
    const ProgramEnd end = CheckWithTool(
        "rtrace", "if [ \"$1\" = -version ]; then exec " + real + " -version; fi\n" + real +
                      " \"$@\" | awk '{ print $1 * 1.03, $2 * 1.03, $3 * 1.03 }'\n");
    EXPECT_EQ(end.status, 1);
    EXPECT_EQ(FirstLine(end.output),
              "⚠  O Radiance calcula, mas o resultado do teste não confere.");
    EXPECT_NE(end.output.find("maior diferença 3,0"), std::string::npos) << end.output;
}

TEST(CheckRadiance, SaysThatTheProgramsDoNotCalculate) {
    const ProgramEnd end = CheckWithTool("oconv", "echo 'oconv: fatal - nada' >&2\nexit 1\n");
    EXPECT_EQ(end.status, 1);
    EXPECT_EQ(FirstLine(end.output),
              "✗  Os programas existem, mas o Radiance não conseguiu calcular.");
    EXPECT_NE(end.output.find("O Radiance não conseguiu calcular:\nmontagem da cena (oconv): oconv "
                              "terminou com erro 1: oconv: fatal - nada"),
              std::string::npos)
        << end.output;
}

} // namespace Merivane::Tests
