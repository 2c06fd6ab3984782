#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Program/ProgramRun.hpp"
#include "Program/SampleProject.hpp"
#include "Program/SampleScene.hpp"
#include "Support/Places.hpp"

namespace Merivane::Tests {

namespace {

/// Calls of `vantoro calcular` on the small project that end before there is a result.
class CalculateRefusals : public testing::Test {
protected:
    CalculateRefusals() {
        SaveSample(Project(), SmallProject());
        before = ReadBytes(Project());
        call.folder = folder.Path();
    }

    std::filesystem::path Project() const { return folder.Path() / "p.vantoro"; }

    ProgramEnd Run(std::vector<std::string> options,
                   const std::string& project = "p.vantoro") const {
        options.insert(options.begin(), {"calcular", project, "--silencioso"});
        return RunVantoro(options, call);
    }

    /// The project is as it was, and nothing stands beside it.
    void ExpectNothingWritten() const {
        EXPECT_EQ(ReadBytes(Project()), before);
        EXPECT_FALSE(std::filesystem::exists(folder.Path() / "p-resultado"));
    }

    TemporaryFolder folder;
    ProgramCall call;
    std::string before;
};

/// What makes a run short.
const std::vector<std::string> Quick = {"--zonas",           "01",        "--perfil",   "rapido",
                                        "--sem-superficies", "--sem-ugr", "--repetivel"};

} // namespace

TEST_F(CalculateRefusals, RefusesWrongUseInOneSentenceWithStatus2) {
    struct Case {
        std::vector<std::string> options;
        std::string error;
    };
    const Case cases[] = {
        {{"--perfil", "lento"}, "--perfil: \"lento\" não existe (use rapido, projeto ou final)"},
        {{"--paleta", "azul"}, "--paleta: \"azul\" não existe (use espectro, calor ou cinza)"},
        {{"--norma", "din"}, "--norma: \"din\" não existe (use nbr ou iso)"},
        {{"--plano", "101"}, "--plano: \"101\" não é um número de 0 a 100"},
        {{"--afastamento", "x"}, "--afastamento: \"x\" não é um número de 0 a 5"},
        {{"--faixa", "10,1"}, "--faixa: \"10,1\" não é um número de 0 a 10"},
        {{"--valores", "0"}, "--valores: \"0\" não é um número de 0,05 a 100"},
        {{"--escala", "1"}, "--escala: \"1\" não é uma escala de 5 (1:5) a 5000 (1:5000)"},
        {{"--atividade", "Sala"}, "--atividade: \"Sala\" não tem a forma \"Zona=atividade\""},
        {{"--atividade", "Sala=s99"},
         "--atividade: não há a atividade \"s99\" (veja \"vantoro atividades\")"},
        {{"--zonas", " ; "}, "--zonas: \" ; \" não diz nenhuma Zona"},
        {{"--sem-verificacao", "--norma", "iso"}, "--norma não vai junto com --sem-verificacao"},
        {{"--sem-verificacao", "--verificar"}, "--verificar não vai junto com --sem-verificacao"},
        {{"--sem-verificacao", "--atividade", "01=s1.1"},
         "--atividade não vai junto com --sem-verificacao"},
        {{"--niveis", ""}, "--niveis: falta o valor"},
    };
    for (const Case& c : cases) {
        const ProgramEnd end = Run(c.options);
        EXPECT_EQ(end.status, 2);
        EXPECT_EQ(end.error, "vantoro: " + c.error + ".\nVeja \"vantoro calcular --ajuda\".\n");
    }
    EXPECT_EQ(RunVantoro({"calcular"}, call).error,
              "vantoro: falta PROJETO.\nVeja \"vantoro calcular --ajuda\".\n");
    ExpectNothingWritten();
}

TEST_F(CalculateRefusals, TellsWhyTheDialogRefusesAValue) {
    struct Case {
        std::vector<std::string> options;
        std::string error;
    };
    const Case cases[] = {
        {{"--sem-mapa", "--sem-curvas"},
         "Escolha ao menos uma representacao: mapa de cor falsa, curvas isolux ou valores."},
        {{"--afastamento", "0,005"},
         "O afastamento dos pontos da parede precisa ser de pelo menos 1 cm."},
        {{"--afastamento", "0,6"},
         "A faixa de borda das estatisticas nao pode ser menor que o afastamento dos pontos."},
    };
    for (const Case& c : cases) {
        const ProgramEnd end = Run(c.options);
        EXPECT_EQ(end.status, 2);
        EXPECT_EQ(end.error, "vantoro: " + c.error + "\n");
    }
    const ProgramEnd levels = Run({"--niveis", "50; abc"});
    EXPECT_EQ(levels.status, 2);
    EXPECT_TRUE(levels.error.starts_with("vantoro: Niveis de iluminancia: ")) << levels.error;
    EXPECT_TRUE(levels.error.ends_with(".\nExemplo: 50; 100; 150; 200; 300; 500; 750; 1000.\n"))
        << levels.error;
    ExpectNothingWritten();
}

TEST_F(CalculateRefusals, ListsTheZonesWhereOneIsNotFound) {
    struct Case {
        std::vector<std::string> options;
        std::string error;
    };
    const Case cases[] = {
        {{"--zonas", "01; Cozinha"},
         "--zonas: não há a Zona \"Cozinha\"; há \"01 Sala\", \"02 Depósito\", \"11 Sala\""},
        {{"--zonas", "sala"}, "--zonas: mais de uma Zona é \"sala\": \"01 Sala\", \"11 Sala\""},
        // Of the floor that is shown:
        {{"--atividade", "11=s1.1"},
         "--atividade: não há a Zona \"11\"; há \"01 Sala\", \"02 Depósito\""},
        {{"--zonas", "deposito", "--atividade", "01=s1.1"},
         "--atividade: não há a Zona \"01\"; há \"02 Depósito\""},
    };
    for (const Case& c : cases) {
        const ProgramEnd end = Run(c.options);
        EXPECT_EQ(end.status, 1);
        EXPECT_EQ(end.error, "vantoro: " + c.error + ".\n");
    }
    ExpectNothingWritten();
}

TEST_F(CalculateRefusals, TellsThatThereIsNothingToCalculate) {
    Workbench::Project bare = SmallProject();
    std::erase_if(bare.elements, [](const Workbench::ProjectElement& element) {
        return element.element.header.type == Host::ElementType::Zone;
    });
    SaveSample(folder.Path() / "semzonas.vantoro", bare);
    const ProgramEnd noZone = Run({}, "semzonas.vantoro");
    EXPECT_EQ(noZone.status, 1);
    EXPECT_EQ(noZone.error, "vantoro: Nenhuma Zona para calcular. Selecione as Zonas (ou deixe a "
                            "selecao vazia para usar todas do pavimento atual).\n");
    const ProgramEnd noLamp = Run({"--zonas", "11"});
    EXPECT_EQ(noLamp.status, 1);
    EXPECT_EQ(noLamp.error,
              "vantoro: Nenhuma luminaria Vantoro ligada no(s) pavimento(s) das Zonas. Crie "
              "luminarias com \"Importar luminaria\" ou \"Adicionar fotometria IES\".\n");
    EXPECT_FALSE(std::filesystem::exists(folder.Path() / "semzonas-resultado"));
    ExpectNothingWritten();
}

TEST_F(CalculateRefusals, TellsThatRadianceIsMissing) {
    call.program = CopyProgram(folder.Path());
    ReplaceTool(call.program, "rtrace", "");
    call.prelude = "export PATH=/usr/bin:/bin RAYPATH=;";
    const ProgramEnd end = Run({});
    EXPECT_EQ(end.status, 1);
    EXPECT_EQ(end.error, "vantoro: Radiance nao encontrado ou incompleto. Rode \"Diagnostico: "
                         "verificar instalacao do Radiance\".\n");
    ExpectNothingWritten();
}

TEST_F(CalculateRefusals, RefusesFilesThatItCanNotReadOrWrite) {
    WriteBytes(folder.Path() / "quebrado.vantoro", "{");
    const ProgramEnd broken = Run({}, "quebrado.vantoro");
    EXPECT_EQ(broken.status, 1);
    EXPECT_TRUE(broken.error.starts_with("vantoro: \"quebrado.vantoro\": ")) << broken.error;
    EXPECT_EQ(ReadBytes(folder.Path() / "quebrado.vantoro"), "{");
    EXPECT_EQ(Run({"--saida", "p.vantoro"}).error,
              "vantoro: não foi possível criar a pasta \"p.vantoro\".\n");
    EXPECT_EQ(Run({"--salvar-como", "sem/pasta.vantoro"}).error,
              "vantoro: não foi possível gravar \"sem/pasta.vantoro\": a pasta não existe.\n");
    WriteBytes(folder.Path() / "carta.txt", "Prezados");
    const ProgramEnd letter = Run({"--salvar-como", "carta.txt"});
    EXPECT_TRUE(letter.error.starts_with("vantoro: --salvar-como: \"carta.txt\": "))
        << letter.error;
    EXPECT_EQ(ReadBytes(folder.Path() / "carta.txt"), "Prezados");
    EXPECT_EQ(Run({"--respostas", "nenhum.json"}).error,
              "vantoro: não foi possível ler \"nenhum.json\".\n");
    ExpectNothingWritten();
}

TEST_F(CalculateRefusals, LeavesTheProjectAsItWasWhereAResultCanNotBeWritten) {
    std::filesystem::create_directories(folder.Path() / "r" / "relatorio.html");
    std::vector<std::string> options = Quick;
    options.insert(options.end(), {"--saida", "r"});
    const ProgramEnd end = Run(options);
    EXPECT_EQ(end.status, 1);
    EXPECT_EQ(end.error, "vantoro: não foi possível gravar \"r/relatorio.html\" (disco cheio ou "
                         "sem permissão); nada foi gravado.\n");
    EXPECT_FALSE(std::filesystem::exists(folder.Path() / "r" / "resultado.json"));
    ExpectNothingWritten();
}

TEST_F(CalculateRefusals, LeavesTheProjectAsItWasWhenCancelled) {
    call.program = CopyProgram(folder.Path());
    ReplaceTool(call.program, "rtrace", "kill -INT $PPID\nsleep 60\n");
    const ProgramEnd end = Run(Quick);
    EXPECT_EQ(end.status, 130);
    EXPECT_EQ(end.error, "vantoro: cálculo cancelado; nada foi gravado.\n");
    EXPECT_EQ(ProcessesWith(folder.Path().string()), 0);
    ExpectNothingWritten();
}

TEST_F(CalculateRefusals, LeavesTheProjectAsItWasWhenKilled) {
    call.program = CopyProgram(folder.Path());
    ReplaceTool(call.program, "rtrace", "kill -KILL $PPID\n");
    EXPECT_EQ(Run(Quick).status, 137);
    EXPECT_EQ(ReadBytes(Project()), before);
}

TEST_F(CalculateRefusals, TellsThatRadianceFailed) {
    call.program = CopyProgram(folder.Path());
    ReplaceTool(call.program, "oconv", "exit 1\n");
    const ProgramEnd end = Run(Quick);
    EXPECT_EQ(end.status, 1);
    EXPECT_TRUE(end.error.starts_with("vantoro: O calculo falhou: ")) << end.error;
    ExpectNothingWritten();
}

TEST_F(CalculateRefusals, EndsWhereTheAnswersCancel) {
    WriteBytes(folder.Path() / "r.json", R"([{"dialogo": 32620, "botao": 2}])");
    const ProgramEnd end = Run({"--respostas", "r.json"});
    EXPECT_EQ(end.status, 130);
    EXPECT_EQ(end.error, "vantoro: cálculo cancelado por uma resposta; nada foi gravado.\n");
    ExpectNothingWritten();
}

TEST_F(CalculateRefusals, TellsAnAnswerThatCanNotBeCarriedOut) {
    WriteBytes(folder.Path() / "r.json",
               R"([{"dialogo": 32620, "itens": [{"item": 23, "marcado": true}]}])");
    const ProgramEnd end = Run({"--respostas", "r.json"});
    EXPECT_EQ(end.status, 1);
    EXPECT_TRUE(end.error.ends_with(": está desabilitado.\n")) << end.error;
    ExpectNothingWritten();
}

} // namespace Merivane::Tests
