#include <algorithm>
#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Program/ProgramRun.hpp"
#include "Support/Places.hpp"

namespace Merivane::Tests {

namespace {

std::string Office() {
    return (SourceFolder() / "exemplos" / "escritorio.vantoro").string();
}

/// Names of the files in a folder.
std::set<std::string> FilesIn(const std::filesystem::path& folder) {
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        names.insert(entry.path().filename().string());
    }
    return names;
}

std::set<std::string> Drawings(const std::vector<std::string>& titles) {
    std::set<std::string> names;
    for (const std::string& title : titles) {
        for (const char* extension : {".svg", ".pdf", ".png"}) {
            names.insert(title + extension);
        }
    }
    return names;
}

const std::string Hint = ".\nVeja \"vantoro desenhar --ajuda\".\n";

} // namespace

TEST(DrawCommand, DrawsEveryWindowInThreeForms) {
    const TemporaryFolder folder;
    const ProgramEnd end = RunVantoro({"desenhar", Office(), "--saida", folder.Path().string()});
    EXPECT_EQ(end.status, 0) << end.error;
    EXPECT_EQ(end.error, "");
    EXPECT_EQ(FilesIn(folder.Path()), Drawings({"planta 0 Térreo", "planta 1 Superior",
                                                "MET01 Metodologia", "AA Corte A", "axonometria"}));
    EXPECT_EQ(std::count(end.output.begin(), end.output.end(), '\n'), 15);
    EXPECT_TRUE(end.output.starts_with(
        "Gravado: " + (folder.Path() / "planta 0 Térreo.svg").string() + "\n"));
    EXPECT_TRUE(ReadBytes(folder.Path() / "axonometria.pdf").starts_with("%PDF-"));
    EXPECT_TRUE(ReadBytes(folder.Path() / "axonometria.png").starts_with("\x89PNG"));
    EXPECT_NE(ReadBytes(folder.Path() / "planta 0 Térreo.svg").find("width=\"420mm\""),
              std::string::npos);
}

TEST(DrawCommand, ShowsTheSymbolsOfLuminairesWhereAsked) {
    const TemporaryFolder folder;
    std::vector<std::string> call = {"desenhar", Office(), "--pavimento", "0", "--saida"};
    call.push_back((folder.Path() / "formas").string());
    ASSERT_EQ(RunVantoro(call).status, 0);
    call.back() = (folder.Path() / "simbolos").string();
    call.push_back("--simbolos");
    ASSERT_EQ(RunVantoro(call).status, 0);
    const std::string shapes = ReadBytes(folder.Path() / "formas" / "planta 0 Térreo.svg");
    const std::string symbols = ReadBytes(folder.Path() / "simbolos" / "planta 0 Térreo.svg");
    EXPECT_NE(shapes, symbols);
}

TEST(DrawCommand, TellsWhyTheScriptOfAPartStoppedAndDrawsTheRest) {
    const TemporaryFolder folder;
    const std::filesystem::path sample = SourceFolder() / "exemplos";
    const std::string project = (folder.Path() / "escritorio.vantoro").string();
    std::filesystem::copy(sample / "escritorio.vantoro", project);
    std::filesystem::copy(sample / "Vantoro Library", folder.Path() / "Vantoro Library");
    const std::filesystem::path part = folder.Path() / "Vantoro Library" / "Downlight Roda 150.gsm";
    std::string bytes = ReadBytes(part);
    const std::size_t place = bytes.find("RESOL 24");
    ASSERT_NE(place, std::string::npos);
    bytes.replace(place, 5, "RESOU");
    WriteBytes(part, bytes);
    const ProgramEnd end = RunVantoro(
        {"desenhar", project, "--axonometria", "--saida", (folder.Path() / "desenhos").string()});
    EXPECT_EQ(end.status, 0);
    EXPECT_TRUE(
        end.error.starts_with("vantoro: A peça \"Downlight Roda 150\" parou no script 3D, linha "))
        << end.error;
    EXPECT_NE(end.error.find("instrução RESOU"), std::string::npos) << end.error;
    EXPECT_EQ(std::count(end.error.begin(), end.error.end(), '\n'), 1) << end.error;
    EXPECT_EQ(FilesIn(folder.Path() / "desenhos"), Drawings({"axonometria"}));
}

TEST(DrawCommand, DrawsTheSameBytesEachTime) {
    const TemporaryFolder first;
    const TemporaryFolder second;
    for (const TemporaryFolder* folder : {&first, &second}) {
        EXPECT_EQ(RunVantoro({"desenhar", Office(), "--axonometria", "--pavimento", "1", "--saida",
                              folder->Path().string()})
                      .status,
                  0);
    }
    EXPECT_EQ(FilesIn(first.Path()), Drawings({"axonometria 1"}));
    for (const std::string& name : FilesIn(first.Path())) {
        EXPECT_TRUE(ReadBytes(first.Path() / name) == ReadBytes(second.Path() / name)) << name;
    }
}

TEST(DrawCommand, DrawsTheWindowThatIsNamed) {
    struct Case {
        std::vector<std::string> arguments;
        std::string title;
    };
    const Case cases[] = {
        {{"--pavimento", "1"}, "planta 1 Superior"},
        {{"--axonometria"}, "axonometria"},
        {{"--janela", "Metodologia"}, "MET01 Metodologia"},
        {{"--janela", "met01"}, "MET01 Metodologia"},
        {{"--janela", "AA Corte A"}, "AA Corte A"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.title);
        const TemporaryFolder folder;
        std::vector<std::string> arguments = {"desenhar", Office(), "--saida",
                                              folder.Path().string()};
        arguments.insert(arguments.end(), c.arguments.begin(), c.arguments.end());
        const ProgramEnd end = RunVantoro(arguments);
        EXPECT_EQ(end.status, 0) << end.error;
        EXPECT_EQ(FilesIn(folder.Path()), Drawings({c.title}));
    }
}

TEST(DrawCommand, DrawsInTheScaleThatIsAsked) {
    const TemporaryFolder folder;
    EXPECT_EQ(RunVantoro({"desenhar", Office(), "--pavimento", "1", "--escala", "1:50", "--saida",
                          folder.Path().string()})
                  .status,
              0);
    const std::string svg = ReadBytes(folder.Path() / "planta 1 Superior.svg");
    EXPECT_NE(svg.find("width=\"594mm\""), std::string::npos);
    EXPECT_NE(svg.find("Superior – 1:50"), std::string::npos);
}

TEST(DrawCommand, SaysWhatAProjectDoesNotHave) {
    struct Case {
        std::vector<std::string> arguments;
        std::string error;
    };
    const Case cases[] = {
        {{"--pavimento", "-1"}, "o projeto não tem o pavimento -1; tem de 0 a 1"},
        {{"--janela", "Corte B"},
         "o projeto não tem a janela \"Corte B\"; tem \"MET01 Metodologia\", \"AA Corte A\""},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.error);
        const TemporaryFolder folder;
        std::vector<std::string> arguments = {"desenhar", Office(), "--saida",
                                              folder.Path().string()};
        arguments.insert(arguments.end(), c.arguments.begin(), c.arguments.end());
        const ProgramEnd end = RunVantoro(arguments);
        EXPECT_EQ(end.status, 1);
        EXPECT_EQ(end.error, "vantoro: " + c.error + ".\n");
        EXPECT_TRUE(FilesIn(folder.Path()).empty());
    }
}

TEST(DrawCommand, RefusesWrongUse) {
    struct Case {
        std::vector<std::string> arguments;
        std::string error;
    };
    const Case cases[] = {
        {{}, "falta PROJETO"},
        {{"p.vantoro", "--janela", "x", "--axonometria"},
         "--janela não vai junto com --pavimento nem com --axonometria"},
        {{"p.vantoro", "--janela", "x", "--pavimento", "0"},
         "--janela não vai junto com --pavimento nem com --axonometria"},
        {{"p.vantoro", "--simbolos", "--axonometria"},
         "--simbolos só vale nas plantas: não vai junto com --janela nem com --axonometria"},
        {{"p.vantoro", "--simbolos", "--janela", "x"},
         "--simbolos só vale nas plantas: não vai junto com --janela nem com --axonometria"},
        {{"p.vantoro", "--pavimento", "0.5"}, "--pavimento: \"0.5\" não é um índice de pavimento"},
        {{"p.vantoro", "--pavimento", "1001"},
         "--pavimento: \"1001\" não é um índice de pavimento"},
        {{"p.vantoro", "--escala", "4"},
         "--escala: \"4\" não é uma escala de 5 (1:5) a 5000 (1:5000)"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.error);
        std::vector<std::string> arguments = {"desenhar"};
        arguments.insert(arguments.end(), c.arguments.begin(), c.arguments.end());
        const ProgramEnd end = RunVantoro(arguments);
        EXPECT_EQ(end.status, 2);
        EXPECT_EQ(end.error, "vantoro: " + c.error + Hint);
    }
}

TEST(DrawCommand, SaysWhyAProjectOrASheetCanNotBeHad) {
    const TemporaryFolder folder;
    const std::string missing = (folder.Path() / "falta.vantoro").string();
    const ProgramEnd gone = RunVantoro({"desenhar", missing});
    EXPECT_EQ(gone.status, 1);
    EXPECT_NE(gone.error.find(missing), std::string::npos) << gone.error;
    // At 1:5 the ground of 25 m would take a sheet of five meters.
    const ProgramEnd large = RunVantoro({"desenhar", Office(), "--pavimento", "0", "--escala", "5",
                                         "--saida", folder.Path().string()});
    EXPECT_EQ(large.status, 1);
    EXPECT_EQ(large.error, "vantoro: \"planta 0 Térreo\": A folha do desenho precisa de largura e "
                           "altura acima de 0 e de até 5000 mm.\n");
    EXPECT_TRUE(FilesIn(folder.Path()).empty());
}

} // namespace Merivane::Tests
