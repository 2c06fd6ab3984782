#include <algorithm>
#include <filesystem>
#include <set>
#include <string>
#include <variant>
#include <vector>

#include <gtest/gtest.h>

#include "Catalog/Json.hpp"
#include "Program/ProgramRun.hpp"
#include "Program/SampleProject.hpp"
#include "Support/Places.hpp"
#include "Text/NativePath.hpp"
#include "Workbench/Project/ProjectFile.hpp"

namespace Merivane::Tests {

namespace {

bool Holds(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

std::set<std::string> FilesIn(const std::filesystem::path& folder) {
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        names.insert(entry.path().filename().string());
    }
    return names;
}

Workbench::Project ReadSample(const std::filesystem::path& path) {
    Workbench::Project project;
    std::string error;
    EXPECT_TRUE(Workbench::ReadProject(Text::WidePath(path), project, error)) << error;
    return project;
}

/// How many elements stand on a layer of this name.
std::ptrdiff_t CountOn(const Workbench::Project& project, const std::string& layer) {
    return std::count_if(project.elements.begin(), project.elements.end(), [&](const auto& each) {
        const auto found = project.layers.find(each.element.header.layer.value);
        return found != project.layers.end() && found->second.name == layer;
    });
}

/// A folder with the small project, and calls on it at the quickest.
struct SmallCalculation {
    SmallCalculation() {
        SaveSample(folder.Path() / "p.vantoro", SmallProject());
        call.folder = folder.Path();
        call.prelude = "export SOURCE_DATE_EPOCH=1700000000 TZ=UTC TMPDIR=" +
                       ShellWord(folder.Path().string()) +
                       " XDG_CONFIG_HOME=" + ShellWord((folder.Path() / "config").string()) + ";";
    }

    ProgramEnd Run(const std::vector<std::string>& options) const {
        std::vector<std::string> arguments = {"calcular",   "p.vantoro",         "--perfil",
                                              "rapido",     "--sem-superficies", "--sem-ugr",
                                              "--repetivel"};
        arguments.insert(arguments.end(), options.begin(), options.end());
        return RunVantoro(arguments, call);
    }

    TemporaryFolder folder;
    ProgramCall call;
};

/// One calculation that several tests look at, made twice.
struct SharedCalculation : SmallCalculation {
    SharedCalculation() {
        before = ReadBytes(folder.Path() / "p.vantoro");
        for (const std::string name : {"a", "b"}) {
            ends.push_back(Run({"--zonas",       "01",     "--salvar-como", name + ".vantoro",
                                "--saida",       name,     "--atividade",   "01=s1.1",
                                "--norma",       "iso",    "--escala",      "50",
                                "--niveis",      "20; 60", "--valores",     "0,5",
                                "--paleta",      "cinza",  "--plano",       "0,8",
                                "--afastamento", "0,1",    "--faixa",       "0,3"}));
        }
        saved = ReadSample(folder.Path() / "a.vantoro");
    }

    std::vector<ProgramEnd> ends;
    std::string before;
    Workbench::Project saved;
};

const SharedCalculation& Shared() {
    static const SharedCalculation Once;
    return Once;
}

} // namespace

TEST(CalculateCommand, WritesTheProjectItsWindowsTheReportAndTheValues) {
    const SharedCalculation& run = Shared();
    EXPECT_EQ(run.ends[0].status, 0) << run.ends[0].error;
    EXPECT_EQ(FilesIn(run.folder.Path() / "a"),
              (std::set<std::string>{"resultado.json", "Sala.csv", "relatorio.pdf",
                                     "relatorio.html", "planta 0 Terreo.svg", "planta 0 Terreo.pdf",
                                     "planta 0 Terreo.png", "planta 1 Superior.svg",
                                     "planta 1 Superior.pdf", "planta 1 Superior.png"}));
    EXPECT_EQ(ReadBytes(run.folder.Path() / "p.vantoro"), run.before);
    EXPECT_TRUE(ReadBytes(run.folder.Path() / "a" / "relatorio.pdf").starts_with("%PDF-"));
    EXPECT_TRUE(
        run.ends[0].output.ends_with("Projeto gravado: a.vantoro\n"
                                     "Abra: a/relatorio.pdf\nAbra: a/planta 0 Terreo.png\n"))
        << run.ends[0].output;
}

TEST(CalculateCommand, NamesTheStudyLikeTheProjectOrElseLikeItsFile) {
    for (const std::string name : {"Casa da praia", ""}) {
        const SmallCalculation calculation;
        Workbench::Project project = SmallProject();
        project.name = name;
        SaveSample(calculation.folder.Path() / "p.vantoro", project);
        const ProgramEnd end =
            calculation.Run({"--zonas", "01", "--saida", "out", "--salvar-como", "named.vantoro"});
        ASSERT_EQ(end.status, 0) << end.error;
        const std::string shown = name.empty() ? "p" : name;
        const std::filesystem::path out = calculation.folder.Path() / "out";
        EXPECT_TRUE(Holds(ReadBytes(out / "resultado.json"), "\"nome\": \"" + shown + "\""));
        EXPECT_TRUE(Holds(ReadBytes(out / "relatorio.html"), "<h1>" + shown + "</h1>"));
    }
}

TEST(CalculateCommand, TellsTheRunLogOnStandardOutput) {
    const std::string& output = Shared().ends[0].output;
    EXPECT_TRUE(Holds(output, "Vantoro: calculo: 1 zona(s), 2 luminaria(s)\n")) << output;
    EXPECT_TRUE(Holds(output, "Vantoro: motor: Estudo rápido (reflexões 2, raios 256)\n"));
    EXPECT_TRUE(Holds(output, "Vantoro: resultados nas camadas \"Vantoro - Isolux\", "));
    EXPECT_TRUE(Holds(Shared().ends[0].error, "Preparando a cena (luminárias e geometria)\n"))
        << Shared().ends[0].error;
}

TEST(CalculateCommand, RepeatsItsFilesByteForByte) {
    const SharedCalculation& run = Shared();
    EXPECT_EQ(run.ends[1].status, 0) << run.ends[1].error;
    EXPECT_EQ(ReadBytes(run.folder.Path() / "a.vantoro"),
              ReadBytes(run.folder.Path() / "b.vantoro"));
    for (const std::string& name : FilesIn(run.folder.Path() / "a")) {
        SCOPED_TRACE(name);
        if (name != "resultado.json") {
            EXPECT_EQ(ReadBytes(run.folder.Path() / "a" / name),
                      ReadBytes(run.folder.Path() / "b" / name));
        }
    }
    const auto withoutTime = [&](const std::string& folder) {
        const std::string text = ReadBytes(run.folder.Path() / folder / "resultado.json");
        const std::size_t begin = text.find("\"segundos\"");
        return text.substr(0, begin) + text.substr(text.find('\n', begin));
    };
    EXPECT_EQ(withoutTime("a"), withoutTime("b"));
    EXPECT_TRUE(Holds(ReadBytes(run.folder.Path() / "a" / "relatorio.html"), "14/11/2023 22:13"));
}

TEST(CalculateCommand, DrawsWhatTheOptionsAskFor) {
    const Workbench::Project& project = Shared().saved;
    EXPECT_EQ(project.planScale, 50.0);
    EXPECT_GT(CountOn(project, "Vantoro - Valores"), 4);
    EXPECT_GT(CountOn(project, "Vantoro - Cor falsa"), 0);
    EXPECT_GT(CountOn(project, "Vantoro - Isolux"), 0);
    EXPECT_TRUE(project.selection.empty()) << "the choice of Zones was for this run";
    const std::string result = ReadBytes(Shared().folder.Path() / "a" / "resultado.json");
    EXPECT_TRUE(Holds(result, "s1.1")) << result.substr(0, 2000);
    EXPECT_TRUE(Holds(ReadBytes(Shared().folder.Path() / "a.vantoro"), "≥ 60")); // the legend
}

TEST(CalculateCommand, LaysThePointsAsTheOptionsAskFor) {
    const SharedCalculation& run = Shared();
    EXPECT_TRUE(Holds(ReadBytes(run.folder.Path() / "a" / "Sala.csv"),
                      "x;y;z;lux;tarefa\r\n0,100;0,100;0,800;"));
    const std::string project = ReadBytes(run.folder.Path() / "a.vantoro");
    EXPECT_TRUE(Holds(project, "Plano de trabalho a 0,80 m: Em "));
    EXPECT_TRUE(Holds(project, "Faixa de borda de 0,30 m junto às paredes"));
    EXPECT_TRUE(Holds(project, "Verificação  —  ISO/CIE 8995-1:2002"));
}

TEST(CalculateCommand, CalculatesTheSelectedZonesAndKeepsTheSelection) {
    const SmallCalculation run;
    Workbench::Project project = SmallProject();
    for (const Workbench::ProjectElement& element : project.elements) {
        const auto* const zone = std::get_if<Host::ZoneData>(&element.element.data);
        if (zone && zone->number == "02") {
            project.selection = {element.element.header.guid};
        }
    }
    SaveSample(run.folder.Path() / "p.vantoro", project);
    EXPECT_TRUE(Holds(run.Run({}).output, "Vantoro: Depósito: Em "));
    const ProgramEnd all = run.Run({"--zonas", "*"});
    EXPECT_TRUE(Holds(all.output, "Vantoro: calculo: 3 zona(s), ")) << all.output << all.error;
    EXPECT_EQ(ReadSample(run.folder.Path() / "p.vantoro").selection, project.selection);
}

TEST(CalculateCommand, LeavesTheUsersProfileAsItWas) {
    const SharedCalculation& run = Shared();
    const ProgramEnd end = RunVantoro({"executar", "32508"}, run.call);
    EXPECT_EQ(end.output, "Vantoro: Motor: Projeto (reflexões 2, raios 1024)\n");
}

TEST(CalculateCommand, LeavesOutWhatItIsAskedTo) {
    const SmallCalculation run;
    const ProgramEnd end =
        run.Run({"--zonas", "01", "--sem-mapa", "--sem-rotulos", "--sem-legenda", "--sem-cor",
                 "--sem-verificacao", "--silencioso", "--pasta-de-trabalho", "trabalho"});
    EXPECT_EQ(end.status, 0);
    EXPECT_EQ(end.output + end.error, "");
    const Workbench::Project project = ReadSample(run.folder.Path() / "p.vantoro");
    EXPECT_EQ(CountOn(project, "Vantoro - Cor falsa"), 0);
    EXPECT_EQ(CountOn(project, "Vantoro - Valores"), 0);
    EXPECT_GT(CountOn(project, "Vantoro - Isolux"), 0);
    EXPECT_EQ(CountOn(project, "Vantoro - Legenda"), 1); // the Zone's summary alone
    EXPECT_TRUE(FilesIn(run.folder.Path() / "p-resultado").contains("relatorio.html"));
    EXPECT_TRUE(std::filesystem::exists(run.folder.Path() / "trabalho" / "scene.oct"));
    EXPECT_FALSE(Holds(ReadBytes(run.folder.Path() / "p-resultado" / "resultado.json"), "ATENDE"));
}

TEST(CalculateCommand, EndsWithStatus3WhereAZoneFails) {
    const SmallCalculation run;
    const ProgramEnd end = run.Run({"--zonas", "sala;01 Sala", "--verificar", "--json"});
    EXPECT_EQ(end.status, 1); // two of that name
    const ProgramEnd failing = run.Run(
        {"--zonas", "01 SALA", "--atividade", "01=s22.3", "--verificar", "--json", "--saida", "r"});
    EXPECT_EQ(failing.status, 3);
    EXPECT_EQ(failing.error, "vantoro: não atende à norma: \"Sala\".\n");
    EXPECT_EQ(failing.output, ReadBytes(run.folder.Path() / "r" / "resultado.json"));
}

TEST(CalculateCommand, CombinesAFileOfAnswersWithItsOptions) {
    const SmallCalculation run;
    WriteBytes(run.folder.Path() / "r.json",
               R"([{"dialogo": 32630, "itens": [{"item": 18, "marcado": false}]}])");
    const ProgramEnd end =
        run.Run({"--zonas", "01", "--respostas", "r.json", "--atividade", "01=nenhuma"});
    EXPECT_EQ(end.status, 0) << end.error;
}

} // namespace Merivane::Tests
