#include <gtest/gtest.h>

#include "Catalog/Json.hpp"
#include "Program/ProgramRun.hpp"
#include "Program/SampleScene.hpp"
#include "Support/Places.hpp"

namespace Merivane::Tests {

TEST(IesCommand, TellsWhatAFileHolds) {
    const TemporaryFolder folder;
    WriteBytes(folder.Path() / "luz.ies", SampleIesText());
    const ProgramEnd end = RunVantoro({"ies", (folder.Path() / "luz.ies").string()});
    EXPECT_EQ(end.status, 0) << end.error;
    EXPECT_NE(end.output.find("Painel"), std::string::npos) << end.output;
    EXPECT_NE(end.output.find("800"), std::string::npos) << end.output;
}

TEST(IesCommand, PutsABlankLineBetweenReports) {
    const TemporaryFolder folder;
    WriteBytes(folder.Path() / "luz.ies", SampleIesText());
    const std::string good = (folder.Path() / "luz.ies").string();
    const std::string report = RunVantoro({"ies", good}).output;
    EXPECT_TRUE(report.starts_with(good + "\n"));
    EXPECT_EQ(RunVantoro({"ies", "falta.ies", good, "falta.ies", good, "falta.ies"}).output,
              report + "\n" + report);
}

TEST(IesCommand, GoesOnAfterAFileThatIsRefusedAndFails) {
    const TemporaryFolder folder;
    WriteBytes(folder.Path() / "luz.ies", SampleIesText());
    WriteBytes(folder.Path() / "nada.ies", "");
    const std::string bad = (folder.Path() / "nada.ies").string();
    const ProgramEnd end = RunVantoro({"ies", bad, (folder.Path() / "luz.ies").string()});
    EXPECT_EQ(end.status, 1);
    EXPECT_EQ(end.error, "vantoro: \"" + bad +
                             "\": linha TILT= nao encontrada - nao parece um arquivo IES.\n");
    EXPECT_NE(end.output.find("Painel"), std::string::npos);
}

TEST(IesCommand, GivesOneJsonEntryForEachFile) {
    const TemporaryFolder folder;
    WriteBytes(folder.Path() / "luz.ies", SampleIesText());
    const std::string good = (folder.Path() / "luz.ies").string();
    const std::string missing = (folder.Path() / "falta.ies").string();
    const ProgramEnd end = RunVantoro({"ies", "--json", good, missing});
    EXPECT_EQ(end.status, 1);
    EXPECT_EQ(end.error, "");
    Catalog::JsonValue entries;
    ASSERT_TRUE(Catalog::JsonParse(end.output, entries).ok) << end.output;
    ASSERT_EQ(entries.items.size(), 2U);
    EXPECT_EQ(entries.items[0].StringOr("arquivo", ""), good);
    EXPECT_EQ(entries.items[0].NumberOr("pico", 0), 800.0);
    ASSERT_NE(entries.items[1].Find("ok"), nullptr);
    EXPECT_EQ(entries.items[1].Find("ok")->boolean, 0);
    EXPECT_NE(entries.items[1].StringOr("erro", ""), "");
}

TEST(IesCommand, WritesThePolarCurveAsPng) {
    const TemporaryFolder folder;
    WriteBytes(folder.Path() / "luz.ies", SampleIesText());
    const ProgramEnd end = RunVantoro({"ies", "--curva", (folder.Path() / "luz.ies").string(),
                                       "--saida", (folder.Path() / "curvas").string()});
    EXPECT_EQ(end.status, 0) << end.error;
    EXPECT_EQ(ReadBytes(folder.Path() / "curvas" / "luz-curva.png").substr(0, 8),
              "\x89PNG\r\n\x1a\n");
}

TEST(IesCommand, GivesFilesOfTheSameNameCurvesOfTheirOwn) {
    const TemporaryFolder folder;
    std::vector<std::string> arguments = {"ies", "--curva", "--saida", folder.Path().string()};
    for (const char* name : {"a", "b"}) {
        std::filesystem::create_directory(folder.Path() / name);
        WriteBytes(folder.Path() / name / "luz.ies", SampleIesText());
        arguments.push_back((folder.Path() / name / "luz.ies").string());
    }
    const ProgramEnd end = RunVantoro(arguments);
    EXPECT_EQ(end.status, 0) << end.error;
    for (const char* curve : {"luz-curva.png", "luz (2)-curva.png"}) {
        EXPECT_TRUE(std::filesystem::exists(folder.Path() / curve));
        EXPECT_NE(end.output.find("Curva: " + (folder.Path() / curve).string() + "\n"),
                  std::string::npos);
    }
}

TEST(IesCommand, WritesTheCurveOfAFileWhoseNameIsAsLongAsNamesGet) {
    const TemporaryFolder folder;
    const std::string longest = std::string(251, 'l') + ".ies";
    WriteBytes(folder.Path() / longest, SampleIesText());
    const ProgramEnd end = RunVantoro({"ies", "--curva", (folder.Path() / longest).string(),
                                       "--saida", (folder.Path() / "curvas").string()});
    EXPECT_EQ(end.status, 0) << end.error;
    EXPECT_FALSE(std::filesystem::is_empty(folder.Path() / "curvas"));
}

TEST(IesCommand, LeavesNoCurveHalfWrittenOnAFullDisk) {
    const TemporaryFolder folder;
    WriteBytes(folder.Path() / "luz.ies", SampleIesText());
    ProgramCall call;
    call.prelude = "ulimit -f 16;"; // blocks of 512 bytes for each file
    const std::filesystem::path out = folder.Path() / "curvas";
    const ProgramEnd end = RunVantoro(
        {"ies", "--curva", (folder.Path() / "luz.ies").string(), "--saida", out.string()}, call);
    EXPECT_EQ(end.status, 1);
    EXPECT_EQ(end.error, "vantoro: não foi possível gravar \"" + (out / "luz-curva.png").string() +
                             "\" (disco cheio ou sem permissão); nada foi gravado.\n");
    EXPECT_TRUE(std::filesystem::is_empty(out));
}

TEST(IesCommand, StopsOnInterruptAndSaysSo) {
    const TemporaryFolder folder;
    std::vector<std::string> arguments = {"ies"};
    // Whoever opens it waits for a writer, who comes with the signal.
    const std::string pipe = ShellWord((folder.Path() / "espera.ies").string());
    arguments.push_back((folder.Path() / "espera.ies").string());
    arguments.emplace_back("depois.ies");
    ProgramCall call;
    call.prelude = "mkfifo " + pipe + "; me=$$; (exec 3>" + pipe + "; kill -INT $me) 2>&1 &";
    const ProgramEnd end = RunVantoro(arguments, call);
    EXPECT_EQ(end.status, 130);
    EXPECT_TRUE(end.error.ends_with("vantoro: leitura cancelada.\n")) << end.error;
    EXPECT_EQ(end.error.find("depois.ies"), std::string::npos) << end.error;
}

TEST(IesCommand, SaysThatAFileHasNoCurve) {
    const TemporaryFolder folder;
    std::string typeB = SampleIesText();
    typeB.replace(typeB.find("5 1 1 2"), 7, "5 1 2 2");
    WriteBytes(folder.Path() / "b.ies", typeB);
    const ProgramEnd end = RunVantoro(
        {"ies", "--curva", (folder.Path() / "b.ies").string(), "--saida", folder.Path().string()});
    EXPECT_EQ(end.status, 1);
    EXPECT_NE(end.error.find("b.ies"), std::string::npos);
    EXPECT_FALSE(std::filesystem::exists(folder.Path() / "b-curva.png"));
}

} // namespace Merivane::Tests
